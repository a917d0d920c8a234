// SPDX-License-Identifier: MIT
#include <chrono>
#include <stdexcept>
#include <thread>

#include "jscript/JScriptSample.h"

namespace cardwright::jscript {
namespace {

using EngineErrors = EngineTest;

TEST_F(EngineErrors, ReportSourceAndKind) {
  ErrorOfCode(u"nowhere");
  EXPECT_EQ(m_Engine->LastError().source.ToUtf8(), "Microsoft JScript runtime error");
  EXPECT_FALSE(m_Engine->LastError().isSyntax);
  ErrorOfCode(u"a b");
  EXPECT_EQ(m_Engine->LastError().source.ToUtf8(), "Microsoft JScript compilation error");
  EXPECT_TRUE(m_Engine->LastError().isSyntax);
}

TEST_F(EngineErrors, StayUntilNextCallOrClearError) {
  ErrorOfCode(u"nowhere");
  EXPECT_EQ(m_Engine->LastError().number, 5009);
  EXPECT_EQ(ErrorOf([&] { Run(u"None"); }), 5);
  EXPECT_EQ(m_Engine->LastError().number, 5009) << "nothing was called";
  Add(u"1");
  EXPECT_EQ(m_Engine->LastError().number, 0);
  ErrorOfCode(u"nowhere");
  m_Engine->ClearError();
  EXPECT_EQ(m_Engine->LastError().number, 0);
}

TEST_F(EngineErrors, AreNotReportedWhenCaught) {
  Add(u"try { nowhere; } catch (e) { }");
  EXPECT_EQ(m_Engine->LastError().number, 0);
}

/// Scripts call Host.Callback with the name of a function that it then runs.
class EngineNesting : public EngineTest {
 protected:
  EngineNesting() {
    m_Gadget->onCall = [this](Args args) {
      const Text procedure = ToText(args[0]);
      return m_Engine->Run({}, procedure, args.subspan(1));
    };
  }
};

TEST_F(EngineNesting, AllowsRecursionThroughTheHost) {
  Add(u"function Sum(n) { return n == 0 ? 0 : n + Host.Callback('Sum', n - 1); }");
  EXPECT_EQ(ToLong(Run(u"Sum", {20})), 210);
  EXPECT_EQ(Value(u"Sum(10)"), "55");
}

TEST_F(EngineNesting, EndsEndlessRecursionWithError28) {
  Add(u"function S() { Host.Callback('S'); }");
  EXPECT_EQ(ErrorOf([&] { Run(u"S"); }), 28);
  Add(u"Host.Say(1)");
  EXPECT_EQ(Said(), "1");
}

TEST_F(EngineNesting, KeepsTheInnermostPositionOfAnError) {
  Add(u"function Inner() {\n  nowhere;\n}\nfunction Outer() {\n  Host.Callback('Inner');\n}");
  EXPECT_EQ(ErrorOf([&] { Run(u"Outer"); }), 5009);
  EXPECT_EQ(m_Engine->LastError().line, 2);
  EXPECT_EQ(m_Engine->LastError().description.ToUtf8(), "'nowhere' is undefined");
}

TEST_F(EngineNesting, LetsOuterScriptsCatchInnerErrors) {
  Add(u"function Inner() { throw new Error(77, 'd'); }\n"
      u"function Outer() { try { Host.Callback('Inner'); } catch (e) { Host.Say(e.number & 0xFFFF, "
      u"e.description); } }");
  Run(u"Outer");
  EXPECT_EQ(Said(), "77 d");
  EXPECT_EQ(m_Engine->LastError().number, 0) << "the latest call went well";
}

TEST_F(EngineNesting, PassesHostErrorsThroughUnchanged) {
  m_Gadget->onCall = [](Args) -> Variant { Raise(4711, u"said so", u"the host"); };
  Add(u"try { Host.Callback(); } catch (e) { Host.Say(e.number & 0xFFFF, e.description, e.message, e "
      u"instanceof Error); }");
  EXPECT_EQ(Said(), "4711 said so said so True");
  for (const char16_t* code :
       {u"\n Host.Callback();", u"\ntry { Host.Callback(); } catch (e) { throw e; }"}) {
    EXPECT_EQ(ErrorOfCode(code), 4711);
    EXPECT_EQ(m_Engine->LastError().description.ToUtf8(), "said so");
    EXPECT_EQ(m_Engine->LastError().source.ToUtf8(), "the host");
    EXPECT_EQ(m_Engine->LastError().line, 2);
  }
  m_Gadget->onCall = [](Args) -> Variant { Raise(-2147221503, u"own number"); };
  EXPECT_EQ(ErrorOfCode(u"Host.Callback();"), -2147221503);
}

TEST_F(EngineNesting, PassesForeignExceptionsThrough) {
  m_Gadget->onCall = [](Args) -> Variant { throw std::runtime_error("a fault"); };
  EXPECT_THROW(
      Add(u"try { Host.Callback(); } catch (e) { Host.Say('caught'); } finally { Host.Say('finally'); }"),
      std::runtime_error);
  EXPECT_EQ(Said(), "");
  Add(u"Host.Say(1)");
  EXPECT_EQ(Said(), "1");
}

TEST_F(EngineNesting, AllowsAddingCodeDuringACall) {
  m_Gadget->onCall = [this](Args args) {
    m_Engine->AddCode({}, ToText(args[0]));
    m_Engine->AddModule(ToText(args[1]));
    m_Engine->AddObject(ToText(args[1]), m_Gadget, true);
    return Variant();
  };
  Add(u"var x = 1; Host.Callback('x = x + 1; function F() { return x; }', 'Late'); Host.Say(x, F()); "
      u"Late.Say('late'); Say(5);");
  EXPECT_EQ(Said(), "2 2; late; 5");
}

TEST_F(EngineNesting, AllowsClosingTheEngineDuringACall) {
  m_Gadget->onCall = [this](Args) {
    m_Engine->Close();
    return Variant();
  };
  EXPECT_EQ(ErrorOfCode(u"try { Host.Callback(); } catch (e) { } Host.Say('still here');"), 18);
  EXPECT_EQ(Said(), "");
  EXPECT_EQ(Value(u"1 + 1"), "2");
}

/// Endless scripts.
class EngineStops : public EngineTest {
 protected:
  template <class Step>
  void InterruptWhile(Step&& step) {
    std::thread other([this] {
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
      m_Engine->Interrupt();
    });
    step();
    other.join();
  }
};

TEST_F(EngineStops, OnInterruptFromAnotherThread) {
  for (const char16_t* code :
       {u"while (true) { }", u"while (true) { try { while (true) { } } catch (e) { } finally { } }",
        u"for (;;) Host.Value = 1;", u"(function f() { for (;;) { try { f(); } catch (e) { } } })();",
        u"/(x+x+)+y/.test(Array(60).join('x'));"}) {
    InterruptWhile([&] { EXPECT_EQ(ErrorOfCode(code), 18) << Text(code).ToUtf8(); });
    EXPECT_EQ(m_Engine->LastError().number, 18);
    EXPECT_EQ(Value(u"1 + 1"), "2") << "the engine lives on";
  }
}

TEST_F(EngineStops, OnTimeout) {
  m_Engine->SetTimeout(60);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(ErrorOfCode(u"for (;;) { try { for (;;) { } } catch (e) { } }"), 18);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  EXPECT_EQ(Value(u"1 + 1"), "2");
  m_Engine->SetTimeout(-1);
  Add(u"var end = new Date().getTime() + 150; while (new Date().getTime() < end) { }");
}

TEST_F(EngineStops, AfterTheHostCallThatInterrupts) {
  m_Gadget->onCall = [this](Args) {
    m_Engine->Interrupt();
    return Variant();
  };
  EXPECT_EQ(ErrorOfCode(u"try { Host.Callback(); } finally { Host.Say('never'); }"), 18);
  EXPECT_EQ(Said(), "");
}

TEST_F(EngineStops, OuterCallsWithInnerCalls) {
  m_Gadget->onCall = [this](Args) {
    try {
      m_Engine->Run({}, u"Endless", {});
    } catch (const Error&) {
      // A host that ignores the error cannot keep the script running.
    }
    return Variant();
  };
  Add(u"function Endless() { for (;;) { } }");
  InterruptWhile([&] { EXPECT_EQ(ErrorOfCode(u"Host.Callback(); Host.Say('never');"), 18); });
  EXPECT_EQ(Said(), "");
}

TEST_F(EngineStops, AtTheMemoryLimit) {
  Start({.memoryBytes = std::size_t{96} << 20});
  EXPECT_EQ(ErrorOfCode(u"var list = []; for (var i = 0; ; i++) list.push({a: i, b: 'x' + i});"), 7);
  Add(u"list = null;");
  EXPECT_EQ(ErrorOfCode(u"var texts = []; for (var i = 0; ; i++) texts.push(Array(100000).join('' + i));"),
            7);
  Add(u"texts = null; Host.Say('on');");
  EXPECT_EQ(Said(), "on");
}

TEST_F(EngineStops, EndlessRecursion) {
  Add(u"function f(n) { return f(n + 1) + 1; }");
  EXPECT_EQ(ErrorOf([&] { Run(u"f", {1}); }), 28);
  Add(u"try { f(1); } catch (e) { Host.Say(e.number & 0xFFFF, e.description); }");
  EXPECT_EQ(Said(), "28 Out of stack space");
}

/// Records what it observes.
class Log final : public ScriptObserver {
 public:
  void OnStatement(std::u16string_view module, int line, int column) override {
    text += Text(module).ToUtf8() + " " + std::to_string(line) + ":" + std::to_string(column) + "; ";
  }
  void OnReturn(std::u16string_view, int line, int) override {
    text += "back to " + std::to_string(line) + "; ";
  }
  std::string text;
};

using EngineObserver = EngineTest;

TEST_F(EngineObserver, ReceivesEachStatement) {
  Log log;
  m_Engine->SetObserver(&log);
  m_Engine->AddModule(u"M");
  m_Engine->AddCode(u"M", u"function f() {\n  var x = 1; Host('a') = 2; x++;\n}\n\nf();\nHost.Say(1);");
  EXPECT_EQ(log.text, "M 5:0; M 2:10; M 2:13; M 2:28; back to 5; M 6:0; ");
  log.text.clear();
  Add(u"for (var i = 0; i < 2; i++)\n  Host.Value = i;\neval('i = 7');");
  EXPECT_EQ(log.text, " 1:13;  1:16;  2:2;  1:23;  1:16;  2:2;  1:23;  1:16;  3:0;  0:0; ");
  log.text.clear();
  m_Engine->SetObserver(nullptr);
  m_Engine->Run(u"M", u"f", {});
  EXPECT_EQ(log.text, "");
}

TEST_F(EngineObserver, CanInterruptTheScript) {
  class Stopper final : public ScriptObserver {
   public:
    explicit Stopper(ScriptEngine& engine) : m_Engine(engine) {}
    void OnStatement(std::u16string_view, int, int) override {
      if (++count == 100) m_Engine.Interrupt();
    }
    int count = 0;

   private:
    ScriptEngine& m_Engine;
  } stopper(*m_Engine);
  m_Engine->SetObserver(&stopper);
  EXPECT_EQ(ErrorOfCode(u"for (var i = 0; ; i++) { var j = i; }"), 18);
  EXPECT_EQ(stopper.count, 100);
}

TEST(Engines, RunOnSeveralThreadsAtOnce) {
  const auto work = [] {
    ScriptHost host;
    for (int k = 0; k < 3; ++k) {
      const auto engine = MakeEngine(host);
      const auto other = MakeEngine(host);
      engine->AddCode({}, u"var s = 0; function f(n) { for (var i = 0; i < n; i++) s += i % 7; return s; }");
      other->AddCode({}, u"var s = 5;");
      std::vector<Variant> args{100000};
      EXPECT_EQ(ToLong(engine->Run({}, u"f", args)), 299995);
      EXPECT_EQ(ToLong(other->Evaluate({}, u"s")), 5);
    }
  };
  std::vector<std::thread> threads;
  for (int k = 0; k < 4; ++k) threads.emplace_back(work);
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
}  // namespace cardwright::jscript
