// SPDX-License-Identifier: MIT
#include "vbscript/VbScriptSample.h"

namespace cardwright::vbscript {
namespace {

constexpr const char16_t* kThing =
    u"Class Thing\nPublic Name, Other\nSub Class_Terminate: Host.Say \"end \" & Name: End Sub\nEnd Class\n"
    u"Function Make(name): Set Make = New Thing: Make.Name = name: End Function\n";

class EngineLifetime : public EngineTest {
 protected:
  EngineLifetime() { Add(kThing); }
};

TEST_F(EngineLifetime, ObjectsEndWithTheirLastReference) {
  const struct {
    const char16_t* code;
    const char* said;
  } rows[] = {
      {u"Set x = Make(1): Host.Say \"a\": Set x = Nothing: Host.Say \"b\"", "a; end 1; b"},
      {u"Set x = Make(1): Set y = x: Set x = Nothing: Host.Say \"a\": y = 5: Host.Say \"b\"", "a; end 1; b"},
      {u"Set x = Make(1): Set x = Make(2): Host.Say \"a\": Set x = Nothing", "end 1; a; end 2"},
      {u"Sub S: Set l = Make(1): Host.Say \"a\": End Sub\nS: Host.Say \"b\"", "a; end 1; b"},
      {u"Sub T: Set l = Make(1): Exit Sub: End Sub\nT: Host.Say \"b\"", "end 1; b"},
      {u"Make 1: Host.Say \"a\"", "end 1; a"},
      {u"Host.Say Make(1).Name: Host.Say \"a\"", "end 1; 1; a"},
      {u"Host.Say TypeName(Make(1)): Host.Say \"a\"", "end 1; Thing; a"},
      {u"With Make(1): Host.Say .Name: End With: Host.Say \"a\"", "1; end 1; a"},
      {u"a = Array(Make(1), Make(2)): Host.Say \"a\": Set a(0) = Nothing: a = 0: Host.Say \"b\"",
       "a; end 1; end 2; b"},
      {u"ReDim d(1): Set d(0) = Make(1): Set d(1) = Make(2): ReDim Preserve d(0): Host.Say \"a\": Erase d: "
       u"Host.Say \"b\"",
       "end 2; a; end 1; b"},
      {u"Dim f(1): Set f(0) = Make(1): Erase f: Host.Say \"a\"", "end 1; a"},
      {u"ReDim g(1): Set g(0) = Make(1): ReDim g(1): Host.Say \"a\"", "end 1; a"},
      {u"Set o = CreateObject(\"\"): o.Add 1, Make(1): o.Add 2, Make(2): o.Remove 2: Host.Say \"a\": "
       u"o.RemoveAll: Host.Say \"b\"",
       "end 2; a; end 1; b"},
      {u"Set x = Make(1): Set x.Other = Make(2): Set x = Nothing: Host.Say \"a\"", "end 1; end 2; a"},
      {u"For Each e In Array(Make(1)): Set k = e: Next: Set e = Nothing: Set k = Nothing: Host.Say \"a\"",
       "end 1; a"},
      {u"On Error Resume Next: Sub U: Set l = Make(1): x = 1 \\ 0: End Sub\nU: Host.Say Err.Number",
       "end 1; 11"},
      {u"Sub V(p): Set p = Nothing: Host.Say \"a\": End Sub\nSet x = Make(1): V x: Host.Say \"b\"",
       "end 1; a; b"},
      {u"x = Eval(\"Make(1).Name\"): Host.Say \"a\": Execute \"Set z = Make(2): Set z = Nothing\"",
       "end 1; a; end 2"},
  };
  for (const auto& row : rows) {
    Add(row.code);
    EXPECT_EQ(Said(), row.said) << Text(row.code).ToUtf8();
  }
}

TEST_F(EngineLifetime, ObjectsHeldByTheHostStay) {
  Add(u"Set x = Make(1)");
  {
    const Variant held = m_Engine->Evaluate({}, u"x");
    Add(u"Set x = Nothing");
    EXPECT_EQ(Said(), "");
    EXPECT_EQ(ToLong(GetProperty(RequireObject(held), u"Name")), 1);
  }
  EXPECT_EQ(Said(), "end 1");
}

TEST_F(EngineLifetime, ObjectsEndWithTheirEngine) {
  Add(u"Set x = Make(1)");
  m_Engine.reset();
  EXPECT_EQ(Said(), "end 1");
}

TEST_F(EngineLifetime, CyclesEndWithTheirEngine) {
  Add(u"Set x = Make(1): Set x.Other = x: Set x = Nothing\n"
      u"Set a = Make(2): Set b = Make(2): Set a.Other = b: Set b.Other = a: Set a = Nothing: Set b = "
      u"Nothing");
  EXPECT_EQ(Said(), "");
  m_Engine.reset();
  std::string said = Said();
  EXPECT_EQ(said.size(), std::string("end 1; end 2; end 2").size()) << said;
}

TEST_F(EngineLifetime, IgnoresErrorsInClassTerminate) {
  Add(u"Class Bad\nSub Class_Terminate: Host.Say \"bad\": x = 1 \\ 0: Host.Say \"never\": End Sub\nEnd "
      u"Class\n"
      u"Set x = New Bad: Set y = Make(1): Set c = New Bad");
  m_Engine.reset();
  const std::string said = Said();
  EXPECT_NE(said.find("bad"), std::string::npos);
  EXPECT_NE(said.find("end 1"), std::string::npos);
  EXPECT_EQ(said.find("never"), std::string::npos);
}

TEST_F(EngineLifetime, EndsDespiteObjectsCreatedMeanwhile) {
  Add(u"Class Phoenix\nSub Class_Terminate: Host.Say \"again\": Set g = New Phoenix: "
      u"ExecuteGlobal \"Dim \" & \"n\" & CLng(Rnd * 1000000): End Sub\nEnd Class\nDim g: Set g = New "
      u"Phoenix");
  m_Engine.reset();
  EXPECT_EQ(Said(), "again");
}

TEST_F(EngineLifetime, ObjectsThatOutliveTheEngineRefuseCalls) {
  Add(u"Function F: F = 1: End Function\nSet x = Make(1)");
  const Variant instance = m_Engine->Evaluate({}, u"x");
  const Variant function = m_Engine->Evaluate({}, u"GetRef(\"F\")");
  m_Engine.reset();
  EXPECT_EQ(Said(), "end 1");
  Object& object = RequireObject(instance);
  EXPECT_EQ(object.TypeName().ToUtf8(), "Thing");
  EXPECT_EQ(ErrorOf([&] { GetProperty(object, u"Name"); }), 17);
  EXPECT_EQ(ErrorOf([&] { LetProperty(object, u"Name", 1); }), 17);
  EXPECT_EQ(ErrorOf([&] { object.Invoke(0, CallKind::Get, {}); }), 17);
  EXPECT_EQ(ErrorOf([&] { DefaultValue(function); }), 17);
}

TEST_F(EngineLifetime, CallsUseTheCurrentDefinitionOfAClass) {
  Add(u"Sub Use(o): Host.Say o.Tell: End Sub");
  for (int k = 0; k < 20; ++k) {
    Add(u"ExecuteGlobal \"Class Again: Public a" + Text::FromUtf8(std::to_string(k)) +
        u": Function Tell: Tell = " + Text::FromUtf8(std::to_string(k)) +
        u": End Function: End Class\"\nUse New Again");
    EXPECT_EQ(Said(), std::to_string(k));
  }
}

/// A second engine with objects of the first.
class EnginePair : public EngineTest {
 protected:
  EnginePair() {
    Add(u"x = \"first's\"\n"
        u"Class C\nPublic Field\nPrivate Secret\nPublic Default Property Get D(n): D = n & x: End Property\n"
        u"Function M(a): a = a + 1: M = x: End Function\nProperty Let P(v): Field = v & \"!\": End Property\n"
        u"Sub Fail: y = 1 \\ 0: End Sub\nEnd Class\nFunction F(a): F = x & a: End Function");
    m_Other->AddObject(u"Host", m_Gadget, false);
    m_Other->AddObject(u"Theirs", Ref<Object>(&RequireObject(m_Engine->Evaluate({}, u"New C"))), false);
    m_Other->AddObject(u"Func", Ref<Object>(&RequireObject(m_Engine->Evaluate({}, u"GetRef(\"F\")"))), false);
    // More names, so that the same NameId is another name in this engine.
    m_Other->AddCode({}, u"Dim q, w, e, r, t, z, u, i, o, p: x = \"second's\"");
  }
  std::unique_ptr<ScriptEngine> m_Other = MakeEngine(m_ScriptHost);
};

TEST_F(EnginePair, CallsObjectsOfTheOtherEngine) {
  m_Other->AddCode({},
                   u"Theirs.Field = 1: n = 5: s = Theirs.M(n): Theirs.P = \"p\"\n"
                   u"Host.Say TypeName(Theirs), Theirs.Field, s, n, Theirs(7), Func(8)");
  EXPECT_EQ(Said(), "C p! first's 6 7first's first's8");
}

TEST_F(EnginePair, GetsErrorsOfTheOtherEngine) {
  m_Other->AddCode({},
                   u"On Error Resume Next\nTheirs.Fail: Host.Say Err.Number: Theirs.Secret = 1: "
                   u"Host.Say Err.Number: Theirs.None: Host.Say Err.Number");
  EXPECT_EQ(Said(), "11; 438; 438");
}

TEST_F(EnginePair, OneMayOutliveTheOther) {
  m_Engine.reset();
  m_Other->AddCode({},
                   u"On Error Resume Next\nHost.Say TypeName(Theirs): x = Theirs.Field: "
                   u"Host.Say Err.Number: Func 1: Host.Say Err.Number");
  EXPECT_EQ(Said(), "C; 17; 17");
}

TEST_F(EnginePair, CallsBackAndForth) {
  m_Engine->AddObject(u"Second", m_Gadget, false);
  m_Gadget->onCall = [this](Args args) { return m_Other->Run({}, u"Down", args); };
  m_Other->AddCode({},
                   u"Function Down(n)\nIf n <= 0 Then Down = \"end\" Else Down = n & Peer.Down(n - 1)\n"
                   u"End Function");
  Add(u"Class Peer\nFunction Down(n): Down = Second.Callback(n): End Function\nEnd Class");
  m_Other->AddObject(u"Peer", Ref<Object>(&RequireObject(m_Engine->Evaluate({}, u"New Peer"))), false);
  std::vector<Variant> args{5};
  EXPECT_EQ(ToText(m_Other->Run({}, u"Down", args)).ToUtf8(), "54321end");
}

}  // namespace
}  // namespace cardwright::vbscript
