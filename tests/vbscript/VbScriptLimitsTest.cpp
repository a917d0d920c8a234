// SPDX-License-Identifier: MIT
#include <chrono>
#include <thread>

#include "cardwright/automation/MemoryBudget.h"
#include "vbscript/VbScriptSample.h"

namespace cardwright::vbscript {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr int kInterrupted = 18;

// Programs that never end, each with another kind of step.
constexpr const char16_t* kEndless[] = {
    u"Do: Loop",
    u"While True: Wend",
    u"For i = 1 To 1E300: Next",
    u"Do: For Each x In Array(1, 2): Next: Loop",
    u"Do: On Error Resume Next: Err.Raise 5: Loop",
    u"Sub S(n)\nIf n > 0 Then S n - 1: S n - 1\nEnd Sub\nS 200",
    u"Function F\nn = n + 1\nIf n < 200 Then x = G: y = G\nn = n - 1\nEnd Function\nn = 0\n"
    u"Function G\nx = F: y = F\nEnd Function\nx = F",
    u"Class C\nSub M(n)\nIf n > 0 Then M n - 1: Me.M n - 1\nEnd Sub\nEnd Class\nSet o = New C\no.M 200",
    u"Class C\nProperty Let P(n)\nIf n > 0 Then Me.P = n - 1: Me.P = n - 1\nEnd Property\nEnd Class\n"
    u"Set o = New C\no.P = 200",
    u"n = 0\nClass C\nSub Class_Initialize\nn = n + 1\nIf n < 200 Then Set a = New C: Set b = New C\nn = n - "
    u"1\n"
    u"End Sub\nEnd Class\nSet o = New C",
    u"Sub S(n)\nIf n > 0 Then r n - 1: r n - 1\nEnd Sub\nSet r = GetRef(\"S\")\nr 200",
    u"Function F(n)\nIf n > 0 Then x = Eval(\"F(n - 1)\"): y = Eval(\"F(n - 1)\")\nEnd Function\nx = F(50)",
    u"Sub S\nOn Error Resume Next\nDo: Host.Callback: Loop\nEnd Sub\nS",
    // The steps of these are short, and none of them counts as a jump or a call.
    u"Class C\nPublic n\nPublic Default Property Get V\nn = n + 1\nIf n < 200 Then V = Me + Me\n"
    u"n = n - 1\nEnd Property\nEnd Class\nSet o = New C\nx = o + 1",
    u"Class C\nSub Class_Terminate\nSet a = New C\nSet a = New C\nEnd Sub\nEnd Class\nSet o = New C\n"
    u"Set o = Nothing",
    // The steps of these take long.
    u"On Error Resume Next\nSet r = New RegExp\nr.Pattern = \"(a+)+$\"\n"
    u"Do: x = r.Test(String(4000, \"a\") & \"b\"): Loop",
    u"s = String(3000000, \"a\")\nDo: x = InStr(s, \"b\"): Loop",
    u"s = String(3000000, \"a\")\nt = String(3000000, \"a\")\nDo: x = s = t: Loop",
    u"s = String(3000000, \"a\")\nt = s\nDo: x = s & t: Loop",
    u"Dim a(300000)\nDo: b = a: Loop",
    u"Do: ReDim a(3000000): Loop",
};

class EngineStops : public EngineTest, public ::testing::WithParamInterface<const char16_t*> {
 protected:
  EngineStops() {
    m_Gadget->onCall = [this](Args) { return m_Engine->Run({}, u"Nap", {}); };
    Add(u"Sub Nap: For k = 1 To 1000: Next: End Sub");
  }
  void ExpectWorking() {
    EXPECT_EQ(m_Engine->LastError().number, kInterrupted);
    Said();
    Add(u"For k = 1 To 10000: Next: Host.Say k");
    EXPECT_EQ(Said(), "10001");
    EXPECT_EQ(m_Engine->LastError().number, 0);
  }
};

TEST_P(EngineStops, WhenAnotherThreadInterrupts) {
  std::thread other([this] {
    std::this_thread::sleep_for(milliseconds(15));
    m_Engine->Interrupt();
  });
  EXPECT_EQ(ErrorOfCode(GetParam()), kInterrupted);
  other.join();
  ExpectWorking();
}

TEST_P(EngineStops, AtTheTimeout) {
  m_Engine->SetTimeout(15);
  EXPECT_EQ(ErrorOfCode(GetParam()), kInterrupted);
  m_Engine->SetTimeout(-1);
  ExpectWorking();
}

INSTANTIATE_TEST_SUITE_P(Endless, EngineStops, ::testing::ValuesIn(kEndless));

using EngineInterrupt = EngineTest;

TEST_F(EngineInterrupt, OfAnIdleEngineHasNoEffect) {
  m_Engine->Interrupt();
  Add(u"For i = 1 To 10000: Next: Host.Say i");
  EXPECT_EQ(Said(), "10001");
}

TEST_F(EngineInterrupt, CannotBeCaughtByAnyCall) {
  Add(u"Sub Inner\nOn Error Resume Next\nHost.Callback 1\nHost.Say \"inner goes on\"\nEnd Sub\n"
      u"Sub Outer\nOn Error Resume Next\nHost.Callback 0\nHost.Say \"outer goes on\"\nEnd Sub");
  m_Gadget->onCall = [this](Args args) {
    if (ToLong(args[0]) == 0) return m_Engine->Run({}, u"Inner", {});
    m_Engine->Interrupt();
    return Variant();
  };
  EXPECT_EQ(ErrorOf([&] { Run(u"Outer"); }), kInterrupted);
  EXPECT_EQ(Said(), "");
}

TEST_F(EngineInterrupt, StopsAfterALongLibraryCall) {
  m_Gadget->onCall = [this](Args) {
    m_Engine->Interrupt();
    return Variant(u"a");
  };
  EXPECT_EQ(ErrorOfCode(u"x = Replace(String(100000, Host.Callback()), \"a\", \"b\")\nHost.Say Len(x)"),
            kInterrupted);
  EXPECT_EQ(Said(), "");
}

TEST_F(EngineInterrupt, DoesNotStopOtherEngines) {
  const auto other = MakeEngine(m_ScriptHost);
  other->Interrupt();
  m_Gadget->onCall = [&](Args) {
    other->Interrupt();
    return Variant();
  };
  Add(u"Host.Callback\nFor i = 1 To 10000: Next: Host.Say i");
  EXPECT_EQ(Said(), "10001");
}

using EngineTimeout = EngineTest;

TEST_F(EngineTimeout, AppliesToTheOutermostCall) {
  m_Gadget->onCall = [this](Args) { return m_Engine->Run({}, u"Brief", {}); };
  Add(u"Sub Brief: For k = 1 To 100: Next: End Sub\nSub Long: Do: Host.Callback: Loop: End Sub");
  m_Engine->SetTimeout(30);
  const auto start = steady_clock::now();
  EXPECT_EQ(ErrorOf([&] { Run(u"Long"); }), kInterrupted);
  EXPECT_GE(steady_clock::now() - start, milliseconds(30));
  for (int k = 0; k < 3; ++k) EXPECT_EQ(ErrorOf([&] { Run(u"Brief"); }), 0) << "each call has its own time";
}

class EngineLimits : public EngineTest {
 protected:
  EngineLimits() : EngineTest(Small()) {}
  static Limits Small() {
    Limits limits;
    limits.callDepth = 50;
    limits.textUnits = 1000;
    limits.memoryBytes = 1 << 20;
    return limits;
  }
  void ExpectWorking() {
    Said();
    Add(u"Function Deep(n)\nIf n > 0 Then Deep = Deep(n - 1) + 1\nEnd Function\n"
        u"ReDim many(1000)\nlong = String(900, \"x\")\nHost.Say Deep(40), UBound(many), Len(long)\nErase "
        u"many");
    EXPECT_EQ(Said(), "40 1000 900");
  }
};

TEST_F(EngineLimits, CallDepthIsError28) {
  const char16_t* const programs[] = {
      u"Sub S: S: End Sub\nS",
      u"Function F: F = F() + 1: End Function\nx = F",
      u"Class C\nPublic Default Function M: M = Me.M: End Function\nEnd Class\nSet o = New C\nx = o",
      u"Class D\nSub Class_Initialize: Set x = New D: End Sub\nEnd Class\nSet o = New D",
  };
  for (const char16_t* program : programs) {
    EXPECT_EQ(ErrorOfCode(program), 28) << Text(program).ToUtf8();
    EXPECT_EQ(m_Engine->LastError().number, 28);
    ExpectWorking();
  }
}

TEST_F(EngineLimits, CallDepthIsExact) {
  Add(u"Function D(n)\nIf n > 1 Then D = D(n - 1)\nEnd Function");
  EXPECT_EQ(ErrorOf([&] { Run(u"D", {50}); }), 0);
  EXPECT_EQ(ErrorOf([&] { Run(u"D", {51}); }), 28);
}

TEST_F(EngineLimits, TextLengthIsError14) {
  const char16_t* const programs[] = {
      u"s = String(1001, \"x\")",
      u"s = Space(1001)",
      u"s = \"x\": Do: s = s & s: Loop",
      u"s = \"\": Do: s = s & \"xxx\": Loop",
      u"s = Join(Array(String(600, \"x\"), String(600, \"x\")))",
      u"s = Replace(String(500, \"x\"), \"x\", \"yyy\")",
      u"s = String(600, \"x\") + String(600, \"x\")",
      u"s = Escape(String(500, ChrW(1000)))",
  };
  for (const char16_t* program : programs) {
    EXPECT_EQ(ErrorOfCode(program), 14) << Text(program).ToUtf8();
    ExpectWorking();
  }
}

TEST_F(EngineLimits, MemoryIsError7) {
  const char16_t* const programs[] = {
      u"ReDim a(1000000)",
      u"Dim b(): ReDim b(1): Do: ReDim Preserve b(2 * UBound(b)): Loop",
      u"ReDim c(2000): For i = 0 To 2000: c(i) = String(900, \"x\"): Next",
      u"d = Array(): Do: d = Array(d, String(900, \"x\")): Loop",
      u"Set e = CreateObject(\"\"): Do: e.Add e.Count, String(900, \"x\"): Loop",
      u"Function F(n): Dim a(1000): F = F(n + 1): End Function\nx = F(1)",
      u"Class N: Public x: End Class\nSet e = Nothing: Do: Set n1 = New N: Set n1.x = e: Set e = n1: Loop",
      u"Sub P: End Sub\nReDim a(20000): For i = 0 To 20000: Set a(i) = GetRef(\"P\"): Next",
      u"ReDim a(20000): For i = 0 To 20000: Set a(i) = New RegExp: Next",
      u"Do: i = i + 1: Execute \"v\" & i & \" = 1\": Loop",
      u"Do: i = i + 1: ExecuteGlobal \"Sub s\" & i & \": End Sub\": Loop",
      u"Do: ExecuteGlobal \"Class K: Public a, b: End Class\": Loop",
  };
  for (const char16_t* program : programs) {
    Start(Small());
    const int number = ErrorOfCode(program);
    EXPECT_TRUE(number == 7 || (number == 28 && Text(program).View().starts_with(u"Function")))
        << number << ' ' << Text(program).ToUtf8();
    Add(u"On Error Resume Next: Erase a: Erase b: Erase c: d = 0: Set e = Nothing");
    ExpectWorking();
  }
}

TEST_F(EngineLimits, MemoryIncludesVariablesOfRunningProcedures) {
  std::u16string code = u"Sub Deep(n)\nDim v0";
  for (int k = 1; k < 3000; ++k) code += u", v" + std::u16string(Text::FromUtf8(std::to_string(k)).View());
  Add(code + u"\nIf n > 0 Then Deep n - 1\nEnd Sub");
  EXPECT_EQ(ErrorOf([&] { Run(u"Deep", {10}); }), 0);
  EXPECT_EQ(ErrorOf([&] { Run(u"Deep", {40}); }), 7);
  ExpectWorking();
}

TEST_F(EngineLimits, MemoryIncludesExecutedSources) {
  Limits limits = Small();
  limits.textUnits = 1 << 20;
  limits.memoryBytes = 4 << 20;
  Start(limits);
  EXPECT_EQ(ErrorOfCode(u"Execute \"x = 1\" & Replace(Space(100000), \" \", \"+1\")"), 1001);
  ExpectWorking();
}

TEST_F(EngineLimits, MemoryIncludesMatchesOfAReplacement) {
  Limits limits = Small();
  limits.textUnits = 1 << 20;
  limits.memoryBytes = 4 << 20;
  Start(limits);
  EXPECT_EQ(ErrorOfCode(u"x = Replace(String(500000, \"a\"), \"a\", \"b\")"), 7);
  ExpectWorking();
}

TEST_F(EngineLimits, ExecutedTextsReleaseTheirMemory) {
  Add(u"For i = 1 To 10: Execute \"x = 1: Dim y: y = 2\": Next");
  const std::size_t used = MemoryBudget::Used();
  Add(u"For i = 1 To 2000: Execute \"x = 1: Dim y: y = 2\": Next");
  EXPECT_EQ(MemoryBudget::Used(), used);
}

TEST_F(EngineLimits, TheirErrorsCanBePassedOver) {
  Add(u"On Error Resume Next\nSub S: S: End Sub\nS\nHost.Say Err.Number\nErr.Clear\nx = Space(2000)\n"
      u"Host.Say Err.Number\nErr.Clear\nReDim a(1000000)\nHost.Say Err.Number");
  EXPECT_EQ(Said(), "28; 14; 7");
}

TEST_F(EngineLimits, MemoryIsReleasedWithTheEngine) {
  const std::size_t before = MemoryBudget::Used();
  Start(Small());
  const std::size_t empty = MemoryBudget::Used();
  Add(u"ReDim a(100)\nFor i = 0 To 100: a(i) = String(900, \"x\"): Next");
  EXPECT_GT(MemoryBudget::Used(), empty + 100 * 900);
  m_Engine.reset();
  EXPECT_LE(MemoryBudget::Used(), before);
}

}  // namespace
}  // namespace cardwright::vbscript
