// SPDX-License-Identifier: MIT
#include "jscript/JScriptSample.h"

namespace cardwright::jscript {
namespace {

class EngineModules : public EngineTest {
 protected:
  EngineModules() { m_Engine->AddModule(u"Init"); }
  void AddTo(std::u16string_view module, std::u16string_view code) { m_Engine->AddCode(module, code); }
};

TEST_F(EngineModules, SeeGlobalNamesButNotEachOthers) {
  Add(u"var shared = 1; function F() { return 'global'; }");
  AddTo(u"Init", u"var own = 2; Host.Say(shared, F(), typeof own);");
  EXPECT_EQ(Said(), "1 global number");
  m_Engine->AddModule(u"Other");
  AddTo(u"Other", u"Host.Say(typeof own, shared)");
  EXPECT_EQ(Said(), "undefined 1");
  Add(u"Host.Say(typeof own)");
  EXPECT_EQ(Said(), "undefined");
}

TEST_F(EngineModules, AssignGlobalVariables) {
  Add(u"var bound; var list = [1];");
  AddTo(u"Init", u"function Main() { bound = 5; list[0] = 6; }");
  m_Engine->Run(u"Init", u"Main", {});
  EXPECT_EQ(Value(u"bound + '' + list[0]"), "56");
}

TEST_F(EngineModules, FindTheirOwnNamesFirst) {
  Add(u"var x = 'global'; function F() { return 'global F'; } function G() { return F() + x; }");
  AddTo(u"Init", u"var x = 'own'; function F() { return 'own F'; } Host.Say(x, F(), G());");
  EXPECT_EQ(Said(), "own own F global Fglobal");
  EXPECT_EQ(Value(u"x", u"init"), "own");
  EXPECT_EQ(Value(u"x"), "global");
}

TEST_F(EngineModules, SeeGlobalNamesAddedLater) {
  AddTo(u"Init", u"function Ask() { return typeof later + Missing(); }");
  EXPECT_EQ(ErrorOf([&] { m_Engine->Run(u"Init", u"Ask", {}); }), 5007);
  Add(u"var later = 1; function Missing() { return '!'; }");
  EXPECT_EQ(ToText(m_Engine->Run(u"Init", u"Ask", {})).ToUtf8(), "number!");
}

TEST_F(EngineModules, HideFunctionsFromTheGlobalModule) {
  AddTo(u"Init", u"function Hidden() { return 1; }");
  Add(u"function Call() { return Hidden(); }");
  EXPECT_EQ(ErrorOf([&] { Run(u"Call"); }), 5007);
  EXPECT_EQ(ErrorOf([&] { Run(u"Hidden"); }), 5);
}

TEST_F(EngineModules, AreFoundInAnyCase) {
  EXPECT_EQ(ErrorOf([&] { m_Engine->AddModule(u"INIT"); }), 5);
  EXPECT_EQ(ErrorOf([&] { m_Engine->AddModule(u""); }), 5) << "the global module";
  AddTo(u"iNIT", u"function F() { return 1; }");
  EXPECT_EQ(ToLong(m_Engine->Run(u"INIT", u"F", {})), 1);
  for (const auto& step : {std::function<void()>([&] { AddTo(u"None", u"x = 1"); }),
                           std::function<void()>([&] { m_Engine->Run(u"None", u"F", {}); }),
                           std::function<void()>([&] { m_Engine->Evaluate(u"None", u"1"); }),
                           std::function<void()>([&] { m_Engine->Procedures(u"None"); })})
    EXPECT_EQ(ErrorOf(step), 5);
  EXPECT_EQ(m_Engine->LastError().number, 0) << "no script was running";
}

TEST_F(EngineModules, ListProcedures) {
  Add(u"function First(a, b) { function inner() { } }\nvar v = function Value() { };\nfunction Second() { }");
  const std::vector<ScriptProcedure> procedures = m_Engine->Procedures({});
  ASSERT_EQ(procedures.size(), 2u);
  EXPECT_EQ(procedures[0].name, u"First");
  EXPECT_EQ(procedures[0].argumentCount, 2);
  EXPECT_TRUE(procedures[0].returnsValue);
  EXPECT_EQ(procedures[1].name, u"Second");
  EXPECT_TRUE(m_Engine->Procedures(u"Init").empty());
  AddTo(u"Init", u"function Main(x) { }");
  ASSERT_EQ(m_Engine->Procedures(u"Init").size(), 1u);
  EXPECT_EQ(m_Engine->Procedures(u"Init")[0].argumentCount, 1);
  Add(u"function First(a) { }");
  ASSERT_EQ(m_Engine->Procedures({}).size(), 2u);
  EXPECT_EQ(m_Engine->Procedures({})[0].argumentCount, 1) << "as it is now";
}

TEST_F(EngineModules, AreUnchangedByCodeThatDoesNotCompile) {
  Add(u"var x = 1;");
  EXPECT_EQ(ErrorOfCode(u"x = 2; function S() { }\nvar y = = 3;"), 1002);
  EXPECT_EQ(Value(u"x"), "1");
  EXPECT_TRUE(m_Engine->Procedures({}).empty());
}

using EngineRun = EngineTest;

TEST_F(EngineRun, CallsAFunctionByItsExactName) {
  Add(u"function Join3(a, b, c) { return a + b + typeof c; } function S() { } var f = function () { return "
      u"7; };");
  EXPECT_EQ(ToText(Run(u"Join3", {1, u"x", Variant::Nothing()})).ToUtf8(), "1xobject");
  EXPECT_TRUE(Run(u"S").IsEmpty());
  EXPECT_EQ(ToLong(Run(u"f")), 7) << "a variable that has one";
  EXPECT_EQ(ErrorOf([&] { Run(u"join3"); }), 5) << "another case is another name";
  EXPECT_EQ(m_Engine->LastError().number, 0);
}

TEST_F(EngineRun, FailsForAnythingButScriptFunctions) {
  Add(u"var v = 1; var o = {};");
  for (const char16_t* name : {u"v", u"o", u"None", u"", u"parseInt", u"eval", u"Date", u"Host", u"F(1)"})
    EXPECT_EQ(ErrorOf([&] { Run(name); }), 5) << Text(name).ToUtf8();
  EXPECT_EQ(m_Engine->LastError().number, 0);
}

TEST_F(EngineRun, PassesAnyNumberOfArguments) {
  Add(u"function F(a) { return arguments.length + typeof a; }");
  EXPECT_EQ(ToText(Run(u"F")).ToUtf8(), "0undefined");
  EXPECT_EQ(ToText(Run(u"F", {1, 2})).ToUtf8(), "2number");
}

TEST_F(EngineRun, EvaluatesExpressions) {
  Add(u"var x = 5; function Twice(n) { return 2 * n; }");
  EXPECT_EQ(Value(u"x == 5"), "True");
  EXPECT_EQ(Value(u"Twice(x) + 1"), "11");
  EXPECT_EQ(Value(u" {a: 3}.a"), "3") << "a bracket begins an object";
  EXPECT_EQ(ErrorOf([&] { m_Engine->Evaluate({}, u"nobody"); }), 5009);
  EXPECT_EQ(ErrorOf([&] { m_Engine->Evaluate({}, u"1 +"); }), 1002);
}

using EngineObjects = EngineTest;

TEST_F(EngineObjects, CannotReuseTakenNames) {
  EXPECT_EQ(ErrorOf([&] { m_Engine->AddObject(u"HOST", m_Gadget, false); }), 5);
  EXPECT_EQ(ErrorOf([&] { m_Engine->AddObject(u"None", nullptr, false); }), 5);
  EXPECT_EQ(ErrorOf([&] { m_Engine->AddObject(u"", m_Gadget, false); }), 5);
  Add(u"var mine = 1;");
  EXPECT_EQ(ErrorOf([&] { m_Engine->AddObject(u"mine", m_Gadget, false); }), 5);
}

TEST_F(EngineObjects, AreReleasedWithTheEngine) {
  const auto probe = MakeRef<Gadget>();
  m_Engine->AddObject(u"Probe", probe, true);
  Add(u"var kept = [Probe, {p: Probe}]; Host.Value = function () { return Probe; }; Probe.Value = kept;");
  EXPECT_FALSE(probe->IsUnique());
  m_Engine.reset();
  // The probe's value is the script's list, which was detached with the engine.
  probe->value = {};
  EXPECT_TRUE(probe->IsUnique());
}

TEST_F(EngineObjects, AreRemovedByClose) {
  Add(u"var x = 1; function F() { return 1; }");
  m_Engine->AddModule(u"M");
  m_Engine->Close();
  EXPECT_TRUE(m_Engine->Procedures({}).empty());
  EXPECT_EQ(ErrorOf([&] { Run(u"F"); }), 5);
  EXPECT_EQ(Value(u"typeof x + typeof Host"), "undefinedundefined");
  m_Engine->AddObject(u"Host", m_Gadget, false);
  m_Engine->AddCode(u"M", u"Host.Say(2)");
  EXPECT_EQ(Said(), "2");
}

TEST(EngineCheck, ReportsTheFirstErrorAndRunsNothing) {
  EXPECT_EQ(Check(u"nowhere.at.all();").number, 0);
  const ScriptError error = Check(u"var a = 1;\nvar b = = 2;");
  EXPECT_EQ(error.number, 1002);
  EXPECT_EQ(error.line, 2);
  EXPECT_EQ(error.column, 8);
  EXPECT_TRUE(error.isSyntax);
  EXPECT_EQ(error.source.ToUtf8(), "Microsoft JScript compilation error");
  EXPECT_EQ(Check(u"@if (true)").number, 1029);
}

}  // namespace
}  // namespace cardwright::jscript
