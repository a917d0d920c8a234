// SPDX-License-Identifier: MIT
#include "vbscript/VbScriptSample.h"

namespace cardwright::vbscript {
namespace {

class EngineModules : public EngineTest {
 protected:
  EngineModules() { m_Engine->AddModule(u"Init"); }
  void AddTo(std::u16string_view module, std::u16string_view code) { m_Engine->AddCode(module, code); }
};

TEST_F(EngineModules, SeeGlobalNamesButNotEachOthers) {
  Add(u"shared = 1\nFunction F: F = \"global\": End Function\nConst K = 7\nClass C\nPublic v\nEnd Class");
  AddTo(u"Init", u"own = 2\nHost.Say shared, F, K, TypeName(New C)");
  EXPECT_EQ(Said(), "1 global 7 C");
  m_Engine->AddModule(u"Other");
  AddTo(u"Other", u"Host.Say TypeName(own), shared");
  EXPECT_EQ(Said(), "Empty 1");
  Add(u"Host.Say TypeName(own)");
  EXPECT_EQ(Said(), "Empty");
}

TEST_F(EngineModules, AssignGlobalVariables) {
  Add(u"Dim bound, f(2)");
  AddTo(u"Init", u"Sub Main()\nbound = 5\nf(1) = 6\nEnd Sub");
  m_Engine->Run(u"Init", u"Main", {});
  EXPECT_EQ(Value(u"bound & f(1)"), "56");
}

TEST_F(EngineModules, PreferTheirOwnNames) {
  Add(u"x = \"global\"\nFunction F: F = \"global F\": End Function\nFunction G: G = F & x: End Function");
  AddTo(u"Init", u"Dim x\nx = \"own\"\nFunction F: F = \"own F\": End Function\nHost.Say x, F, G");
  EXPECT_EQ(Said(), "own own F global Fglobal");
  EXPECT_EQ(Value(u"x", u"init"), "own");
  EXPECT_EQ(Value(u"x"), "global");
}

TEST_F(EngineModules, SeeGlobalNamesAddedLater) {
  AddTo(u"Init", u"Function Ask: Ask = TypeName(later) & Missing(): End Function");
  EXPECT_EQ(ErrorOf([&] { m_Engine->Run(u"Init", u"Ask", {}); }), 13);
  Add(u"later = 1\nFunction Missing: Missing = \"!\": End Function");
  EXPECT_EQ(ToText(m_Engine->Run(u"Init", u"Ask", {})).ToUtf8(), "Integer!");
}

TEST_F(EngineModules, AreFoundInAnyCase) {
  EXPECT_EQ(ErrorOf([&] { m_Engine->AddModule(u"INIT"); }), 5);
  EXPECT_EQ(ErrorOf([&] { m_Engine->AddModule(u""); }), 5) << "the global module";
  AddTo(u"iNIT", u"Function F: F = 1: End Function");
  EXPECT_EQ(ToLong(m_Engine->Run(u"INIT", u"f", {})), 1);
  for (const auto& step : {std::function<void()>([&] { AddTo(u"None", u"x = 1"); }),
                           std::function<void()>([&] { m_Engine->Run(u"None", u"F", {}); }),
                           std::function<void()>([&] { m_Engine->Evaluate(u"None", u"1"); }),
                           std::function<void()>([&] { m_Engine->Procedures(u"None"); })})
    EXPECT_EQ(ErrorOf(step), 5);
  EXPECT_EQ(m_Engine->LastError().number, 0) << "no script was running";
}

TEST_F(EngineModules, ExecutedCodeBelongsToTheModuleThatExecutesIt) {
  AddTo(u"Init", u"Sub S: ExecuteGlobal \"made = 1\": End Sub\nS\nHost.Say made");
  EXPECT_EQ(Said(), "1");
  Add(u"Host.Say TypeName(made)");
  EXPECT_EQ(Said(), "Empty");
}

TEST_F(EngineModules, ListTheirProcedures) {
  Add(u"Sub First(a, b): End Sub\nFunction Second: End Function\nClass C\nSub Method: End Sub\nEnd Class\n"
      u"Private Function Third(ByVal x): End Function");
  const std::vector<ScriptProcedure> procedures = m_Engine->Procedures({});
  ASSERT_EQ(procedures.size(), 3u);
  const struct {
    const char16_t* name;
    int count;
    bool returns;
  } rows[] = {{u"First", 2, false}, {u"Second", 0, true}, {u"Third", 1, true}};
  for (std::size_t k = 0; k < 3; ++k) {
    EXPECT_EQ(procedures[k].name, rows[k].name);
    EXPECT_EQ(procedures[k].argumentCount, rows[k].count);
    EXPECT_EQ(procedures[k].returnsValue, rows[k].returns);
  }
  EXPECT_TRUE(m_Engine->Procedures(u"Init").empty());
}

TEST_F(EngineModules, ListRedefinedProceduresAsTheyAreNow) {
  Add(u"Sub A: End Sub\nSub B: End Sub");
  Add(u"Function a(x): End Function");
  ASSERT_EQ(m_Engine->Procedures({}).size(), 2u);
  EXPECT_EQ(m_Engine->Procedures({})[0].argumentCount, 1);
  EXPECT_TRUE(m_Engine->Procedures({})[0].returnsValue);
}

TEST_F(EngineModules, CodeThatDoesNotCompileChangesNothing) {
  Add(u"x = 1");
  EXPECT_EQ(ErrorOfCode(u"x = 2\nSub S: End Sub\ny = = 3"), 1002);
  EXPECT_EQ(Value(u"x"), "1");
  EXPECT_TRUE(m_Engine->Procedures({}).empty());
}

using EngineRun = EngineTest;

TEST_F(EngineRun, CallsAProcedureByNameWithArguments) {
  Add(u"Function Join3(a, b, c): Join3 = a & b & TypeName(c): End Function\nSub S: End Sub");
  EXPECT_EQ(ToText(Run(u"JOIN3", {1, u"x", Variant::Nothing()})).ToUtf8(), "1xNothing");
  EXPECT_TRUE(Run(u"S").IsEmpty()) << "a Sub gives nothing";
}

TEST_F(EngineRun, FailsForAnythingButAProcedure) {
  Add(u"Dim v\nConst K = 1\nClass C\nEnd Class\nFunction F(a): F = a: End Function");
  for (const char16_t* name : {u"v", u"K", u"C", u"None", u"", u"Len", u"Host", u"F(1)"})
    EXPECT_EQ(ErrorOf([&] { Run(name); }), 5) << Text(name).ToUtf8();
  EXPECT_EQ(m_Engine->LastError().number, 0);
}

TEST_F(EngineRun, FailsForAWrongNumberOfArguments) {
  Add(u"Function F(a): F = a: End Function");
  EXPECT_EQ(ErrorOf([&] { Run(u"F"); }), 450);
  EXPECT_EQ(ErrorOf([&] { Run(u"F", {1, 2}); }), 450);
  EXPECT_EQ(ToLong(Run(u"F", {3})), 3);
}

TEST_F(EngineRun, WritesBackArgumentsPassedByReference) {
  Add(u"Sub Change(a, ByVal b, c): a = a + 1: b = b + 1: c(0) = \"new\": End Sub");
  const std::vector<Text> texts{u"old"};
  Variant a = 1, b = 1, c = Array::FromTexts(texts);
  Run(u"Change", {Variant::ByRef(a), Variant::ByRef(b), Variant::ByRef(c)});
  EXPECT_EQ(ToLong(a), 2);
  EXPECT_EQ(ToLong(b), 1) << "a parameter by value";
  EXPECT_EQ(ToText(*c.ArrayPtr()->Find(0)).ToUtf8(), "new");
  std::vector<Variant> plain{1, 1, c};
  m_Engine->Run({}, u"Change", plain);
  EXPECT_EQ(ToLong(plain[0]), 1) << "a plain argument is the script's own";
}

TEST_F(EngineRun, ReturnsArraysAndObjects) {
  Add(u"Class C\nPublic v\nEnd Class\nFunction A: A = Array(1, 2): End Function\n"
      u"Function O: Set O = New C: O.v = 5: End Function");
  EXPECT_EQ(Run(u"A").ArrayPtr()->Find(1)->Long(), 2);
  EXPECT_EQ(ToLong(GetProperty(RequireObject(Run(u"O")), u"v")), 5);
}

TEST_F(EngineRun, EvaluatesExpressions) {
  Add(u"x = 5\nFunction Twice(n): Twice = 2 * n: End Function");
  EXPECT_EQ(Value(u"x = 5"), "True") << "it compares";
  EXPECT_EQ(Value(u"Twice(x) + 1"), "11");
  EXPECT_TRUE(m_Engine->Evaluate({}, u"nobody").IsEmpty());
  EXPECT_EQ(ErrorOf([&] { m_Engine->Evaluate({}, u"1 +"); }), 1002);
  EXPECT_EQ(ErrorOf([&] { m_Engine->Evaluate({}, u"1 \\ 0"); }), 11);
  EXPECT_EQ(ErrorOf([&] { m_Engine->Evaluate({}, u"x = 1 : y = 2"); }), 1025);
}

using EngineObjects = EngineTest;

TEST_F(EngineObjects, AreFoundByName) {
  m_Gadget->value = 3;
  Add(u"HOST.Value = host.value + 1\nSet alias = Host\nalias.Say TypeName(Host), Host.Value");
  EXPECT_EQ(Said(), "Gadget 4");
}

TEST_F(EngineObjects, NeedNamesOfTheirOwn) {
  EXPECT_EQ(ErrorOf([&] { m_Engine->AddObject(u"HOST", m_Gadget, false); }), 5);
  EXPECT_EQ(ErrorOf([&] { m_Engine->AddObject(u"Err", m_Gadget, false); }), 5);
  EXPECT_EQ(ErrorOf([&] { m_Engine->AddObject(u"", m_Gadget, false); }), 5);
  EXPECT_EQ(ErrorOf([&] { m_Engine->AddObject(u"None", nullptr, false); }), 5);
  m_Engine->AddObject(u"Again", m_Gadget, true);
  m_Engine->AddObject(u"Another", m_Gadget, true);
  Add(u"Say Again Is Another");
  EXPECT_EQ(Said(), "True");
}

TEST_F(EngineObjects, MayMakeTheirMembersGlobal) {
  EXPECT_EQ(ErrorOfCode(u"Say 1"), 13);
  m_Engine->AddObject(u"Open", m_Gadget, true);
  Add(u"Value = 5\nSay Value, Host.Value\nValue = Value & \"!\"\nCall Say(Value)");
  EXPECT_EQ(Said(), "5 5; 5!");
  EXPECT_EQ(ErrorOfCode(u"Option Explicit\nSay Value"), 0) << "they count as declared";
  Add(u"Sub S\nValue = 1\nEnd Sub\nS");
  EXPECT_EQ(ToLong(m_Gadget->value), 1);
}

TEST_F(EngineObjects, AreHiddenByNamesOfTheScript) {
  m_Engine->AddObject(u"Open", m_Gadget, true);
  Add(u"Function Say(x): Host.Say \"own\", x: End Function\nSay 1\nSub S\nDim Value\nValue = 2\nEnd Sub\nS");
  EXPECT_EQ(Said(), "own 1");
  EXPECT_TRUE(m_Gadget->value.IsEmpty());
  Add(u"Dim Open\nOpen = 1");
  EXPECT_EQ(Value(u"Open"), "1");
}

TEST_F(EngineObjects, HideNamesOfTheLibrary) {
  EXPECT_EQ(Value(u"Left(\"abc\", 1)"), "a");
  m_Engine->AddObject(u"Open", m_Gadget, true);
  EXPECT_EQ(Value(u"Left(\"abc\", 1)"), "the gadget's") << "though the script has used the library's before";
  EXPECT_EQ(Value(u"Len(\"abc\")"), "3");
  m_Engine->AddObject(u"Len", m_Gadget, false);
  EXPECT_EQ(Value(u"TypeName(Len)"), "Gadget");
}

TEST_F(EngineObjects, ShowNoBoxesWithoutAllowUI) {
  m_Engine->SetAllowUI(false);
  Add(u"Host.Say MsgBox(\"x\"), TypeName(InputBox(\"x\"))");
  EXPECT_EQ(Said(), "0 Empty");
  EXPECT_EQ(m_ScriptHost.boxes, 0);
  m_Engine->SetAllowUI(true);
  Add(u"Host.Say MsgBox(\"x\"), InputBox(\"x\")");
  EXPECT_EQ(Said(), "6 typed");
  EXPECT_EQ(m_ScriptHost.boxes, 2);
}

}  // namespace
}  // namespace cardwright::vbscript
