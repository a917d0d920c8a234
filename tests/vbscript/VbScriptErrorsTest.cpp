// SPDX-License-Identifier: MIT
#include "vbscript/VbScriptSample.h"

namespace cardwright::vbscript {
namespace {

using EngineErrors = EngineTest;

TEST_F(EngineErrors, HaveThePositionOfTheStatement) {
  const struct {
    const char16_t* code;
    int number, line, column;
    const char* text;
    bool isSyntax;
  } rows[] = {
      {u"x = 1\n  y = x \\ 0", 11, 2, 2, "Division by zero", false},
      {u"x = 1 : nothere 5", 13, 1, 8, "Type mismatch: 'nothere'", false},
      {u"Sub S\n  x = 1\n    Err.Raise 1234, \"me\", \"mine\"\nEnd Sub\nS", 1234, 3, 4, "mine", false},
      {u"x = = 1", 1002, 1, 4, "Syntax error", true},
      {u"x = 1\nIf x Then\n", 1014, 3, 0, "Expected 'End'", true},
      {u"x = 0 End If", 1025, 1, 6, "Expected end of statement", true},
      {u"Option Explicit\nx = 1", 500, 2, 0, "Variable is undefined: 'x'", false},
  };
  for (const auto& row : rows) {
    Start({});
    EXPECT_EQ(ErrorOfCode(row.code), row.number) << Text(row.code).ToUtf8();
    const ScriptError error = m_Engine->LastError();
    EXPECT_EQ(error.number, row.number) << Text(row.code).ToUtf8();
    EXPECT_EQ(error.line, row.line) << Text(row.code).ToUtf8();
    EXPECT_EQ(error.column, row.column) << Text(row.code).ToUtf8();
    EXPECT_EQ(error.description.ToUtf8(), row.text);
    EXPECT_EQ(error.isSyntax, row.isSyntax) << Text(row.code).ToUtf8();
  }
}

TEST_F(EngineErrors, HaveASource) {
  ErrorOfCode(u"x = 1 \\ 0");
  EXPECT_EQ(m_Engine->LastError().source.ToUtf8(), "Microsoft VBScript runtime error");
  ErrorOfCode(u"Err.Raise 1000, \"me\"");
  EXPECT_EQ(m_Engine->LastError().source.ToUtf8(), "me");
  ErrorOfCode(u"x = = 1");
  EXPECT_EQ(m_Engine->LastError().source.ToUtf8(), "Microsoft VBScript compilation error");
}

TEST_F(EngineErrors, StayUntilTheNextCallOrClearError) {
  ErrorOfCode(u"x = 1 \\ 0");
  EXPECT_EQ(m_Engine->LastError().number, 11);
  EXPECT_EQ(ErrorOf([&] { Run(u"None"); }), 5);
  EXPECT_EQ(m_Engine->LastError().number, 11) << "nothing was called";
  Add(u"x = 1");
  EXPECT_EQ(m_Engine->LastError().number, 0);
  ErrorOfCode(u"x = 1 \\ 0");
  m_Engine->ClearError();
  EXPECT_EQ(m_Engine->LastError().number, 0);
  ErrorOfCode(u"x = 1 \\ 0");
  m_Engine->Evaluate({}, u"1");
  EXPECT_EQ(m_Engine->LastError().number, 0);
}

TEST_F(EngineErrors, HandledByTheScriptAreNotReported) {
  Add(u"On Error Resume Next\nx = 1 \\ 0");
  EXPECT_EQ(m_Engine->LastError().number, 0);
}

/// Scripts call `Again`, which runs the procedure of the given name.
class EngineNesting : public EngineTest {
 protected:
  EngineNesting() {
    m_Gadget->onCall = [this](Args args) {
      const Text procedure = ToText(args[0]);
      return m_Engine->Run({}, procedure, args.subspan(1));
    };
  }
};

TEST_F(EngineNesting, CallsOfHostAndScriptNest) {
  Add(u"Function Sum(n)\nIf n = 0 Then Sum = 0 Else Sum = n + Host.Callback(\"Sum\", n - 1)\nEnd Function");
  EXPECT_EQ(ToLong(Run(u"Sum", {20})), 210);
  EXPECT_EQ(Value(u"Sum(10)"), "55");
}

TEST_F(EngineNesting, EndlessNestingIsOutOfStackSpace) {
  Add(u"Sub S: Host.Callback \"S\": End Sub");
  EXPECT_EQ(ErrorOf([&] { Run(u"S"); }), 28);
  Add(u"Host.Say 1");
  EXPECT_EQ(Said(), "1");
}

TEST_F(EngineNesting, ErrorsKeepTheInnermostPosition) {
  Add(u"Sub Inner\n  x = 1 \\ 0\nEnd Sub\nSub Outer\n  Host.Callback \"Inner\"\nEnd Sub");
  EXPECT_EQ(ErrorOf([&] { Run(u"Outer"); }), 11);
  EXPECT_EQ(m_Engine->LastError().line, 2);
}

TEST_F(EngineNesting, ErrorsOfInnerCallsCanBePassedOver) {
  Add(u"Sub Inner: Err.Raise 77, \"s\", \"d\": End Sub\nSub Outer\nOn Error Resume Next\n"
      u"Host.Callback \"Inner\"\nHost.Say Err.Number, Err.Source, Err.Description\nEnd Sub");
  Run(u"Outer");
  EXPECT_EQ(Said(), "77 s d");
  EXPECT_EQ(m_Engine->LastError().number, 0) << "the latest call went well";
}

TEST_F(EngineNesting, EachCallHasAnErrOfItsOwn) {
  Add(u"Sub Inner\nOn Error Resume Next\nHost.Say Err.Number\nx = CInt(\"x\")\nHost.Say Err.Number\nEnd Sub\n"
      u"Sub Outer\nOn Error Resume Next\nx = 1 \\ 0\nHost.Callback \"Inner\"\n"
      u"Host.Say Err.Number, Err.Description\nEnd Sub");
  Run(u"Outer");
  EXPECT_EQ(Said(), "0; 13; 11 Division by zero");
}

TEST_F(EngineNesting, ErrorsOfTheHostAreRaisedInTheScript) {
  m_Gadget->onCall = [](Args) -> Variant { Raise(4711, u"said so", u"the host"); };
  Add(u"On Error Resume Next\nHost.Callback\nHost.Say Err.Number, Err.Source, Err.Description");
  EXPECT_EQ(Said(), "4711 the host said so");
  EXPECT_EQ(ErrorOfCode(u"\n Host.Callback"), 4711);
  EXPECT_EQ(m_Engine->LastError().line, 2);
  EXPECT_EQ(m_Engine->LastError().column, 1);
}

TEST_F(EngineNesting, ErrorsOfAnotherEngineHaveThePositionOfTheCall) {
  const auto other = MakeEngine(m_ScriptHost);
  other->AddCode({}, u"\n\n\nSub Fail\n  x = y.z\nEnd Sub");
  m_Gadget->onCall = [&](Args) { return other->Run({}, u"Fail", {}); };
  EXPECT_EQ(ErrorOfCode(u"\n Host.Callback"), 424);
  EXPECT_EQ(m_Engine->LastError().line, 2);
  EXPECT_EQ(m_Engine->LastError().column, 1);
  EXPECT_EQ(other->LastError().line, 5);
}

TEST_F(EngineNesting, ACalledHostMayAddCode) {
  m_Gadget->onCall = [this](Args args) {
    m_Engine->AddCode({}, ToText(args[0]));
    m_Engine->AddModule(ToText(args[1]));
    m_Engine->AddObject(ToText(args[1]), m_Gadget, true);
    return Variant();
  };
  Add(u"x = 1\nHost.Callback \"x = x + 1: Function F: F = x: End Function\", \"Late\"\nHost.Say x, F\n"
      u"Late.Say \"late\"\nExecute \"Say 5\"");
  EXPECT_EQ(Said(), "2 2; late; 5");
}

TEST_F(EngineNesting, TheHostWritesVariablesPassedByReference) {
  m_Gadget->onCall = [](Args args) {
    for (Variant& arg : args) arg.Deref() = u"written";
    return Variant();
  };
  Add(u"Sub S\nDim a(1), v\nHost.Callback v, a(0), (plain), g\nHost.Say v, a(0), TypeName(plain), g\nEnd "
      u"Sub\nS");
  EXPECT_EQ(Said(), "written written Empty written");
}

/// Records the reports.
class Log final : public ScriptObserver {
 public:
  void OnStatement(std::u16string_view module, int line, int column) override {
    text += Text(module).ToUtf8() + " " + std::to_string(line) + ":" + std::to_string(column) + "; ";
  }
  std::string text;
};

using EngineObserver = EngineTest;

TEST_F(EngineObserver, ReportsEachStatement) {
  Log log;
  m_Engine->SetObserver(&log);
  m_Engine->AddModule(u"M");
  m_Engine->AddCode(u"M",
                    u"Sub S\n  x = 1: y = 2\nEnd Sub\n\nFor i = 1 To 2\n S\nNext\nIf x = 0 Then Host.Say 1");
  EXPECT_EQ(log.text, "M 5:0; M 6:1; M 2:2; M 2:9; M 6:1; M 2:2; M 2:9; M 8:0; M 8:14; ");
  log.text.clear();
  m_Engine->SetObserver(nullptr);
  m_Engine->Run(u"M", u"S", {});
  EXPECT_EQ(log.text, "");
}

}  // namespace
}  // namespace cardwright::vbscript
