// SPDX-License-Identifier: MIT
// A script control whose language, code and objects change while its scripts run.

#include "cardwright/platform/EngineControl.h"
#include "forms/FormScriptsFixture.h"

namespace cardwright {
namespace {

/// Changes the control as a script asks it to.
class Meddler final : public TableObject {
 public:
  Text TypeName() const override { return u"Meddler"; }
  void Reset() { control->Reset(); }
  void Start() {
    control->Reset();
    control->AddObject(u"Meddler", Ref<Object>(this), true);
    control->AddCode(u"Sub Late\nEnd Sub");
  }
  Variant Call(const Text& procedure) { return control->Run(procedure, {}); }
  void Speak(const Text& language) { control->SetLanguage(language); }

  ScriptControl* control = nullptr;

 protected:
  const MemberTable& Members() const override {
    static constexpr Member kMembers[] = {
        Method<&Meddler::Reset>(u"Reset"),
        Method<&Meddler::Start>(u"Start"),
        Method<&Meddler::Call>(u"Call"),
        Method<&Meddler::Speak>(u"Speak"),
    };
    static const MemberTable table(kMembers);
    return table;
  }
};

class MeddledControl : public testing::Test {
 protected:
  MeddledControl() {
    m_Meddler->control = m_Control.get();
    Begin(u"VBScript");
  }
  void Begin(std::u16string_view language) {
    m_Control->SetLanguage(language);
    m_Control->AddObject(u"Meddler", m_Meddler, true);
  }
  int ErrorOfRun(std::u16string_view procedure) {
    try {
      m_Control->Run(procedure, {});
    } catch (const Error& error) {
      return error.Number();
    }
    return 0;
  }
  std::vector<std::string> ModuleNames() const {
    std::vector<std::string> names;
    for (const Ref<ScriptModule>& module : m_Control->Modules()) names.push_back(module->Name().ToUtf8());
    return names;
  }

  const Ref<EngineControl> m_Control = MakeRef<EngineControl>(
      BothLanguages(), [] { return std::make_unique<ScriptHost>(); },
      [](std::int32_t handle) { return handle == 1; });
  const Ref<Meddler> m_Meddler = MakeRef<Meddler>();
};

TEST_F(MeddledControl, EndsACallInTheEngineThatItStartedIn) {
  m_Control->AddCode(u"Function F\nReset\nF = G + 1\nEnd Function\nFunction G\nG = 41\nEnd Function");
  EXPECT_EQ(ToLong(m_Control->Run(u"F", {})), 42);
  EXPECT_EQ(ErrorOfRun(u"F"), 5);
  EXPECT_EQ(m_Control->LastError().number, 0) << "a procedure that there is none of is the caller's mistake";
}

TEST_F(MeddledControl, ClearsAnErrorThatTheScriptIgnored) {
  m_Control->AddCode(
      u"Sub Outer\nOn Error Resume Next\nMeddler.Call \"Inner\"\nEnd Sub\nSub Inner\n\nx = 1 \\ 0\nEnd Sub");
  EXPECT_EQ(ErrorOfRun(u"Inner"), 11);
  EXPECT_EQ(m_Control->LastError().line, 7);
  EXPECT_EQ(ErrorOfRun(u"Outer"), 0);
  EXPECT_EQ(m_Control->LastError().number, 0);
}

TEST_F(MeddledControl, HasOneGlobalModuleAfterARestartFromInside) {
  m_Control->AddCode(
      u"Class Last\nPrivate Sub Class_Terminate\nMeddler.Start\nEnd Sub\nEnd Class\nSet held = New Last");
  m_Control->AddModule(u"more");
  EXPECT_EQ(ModuleNames(), (std::vector<std::string>{"Global", "more"}));
  m_Control->Reset();
  EXPECT_EQ(ModuleNames(), std::vector<std::string>{"Global"});
  EXPECT_EQ(ErrorOfRun(u"Late"), 5);
}

TEST_F(MeddledControl, ChangesLanguageDuringACall) {
  m_Control->AddCode(u"Function F\nSpeak \"JScript\"\nF = 1\nEnd Function");
  EXPECT_EQ(ToLong(m_Control->Run(u"F", {})), 1);
  EXPECT_EQ(m_Control->Language(), u"JScript");
  m_Control->AddObject(u"Meddler", m_Meddler, true);
  m_Control->AddCode(u"function F() { Meddler.Speak('vbscript'); return typeof F; }");
  EXPECT_EQ(ToText(m_Control->Run(u"F", {})), u"function");
  m_Control->AddCode(u"Sub Main\nEnd Sub");
  EXPECT_EQ(ErrorOfRun(u"Main"), 0);
}

TEST_F(MeddledControl, KeepsModulesWithoutCode) {
  const Ref<ScriptModule> module = m_Control->AddModule(u"init");
  module->AddCode(u"Sub Main\nReset\nEnd Sub");
  module->Run(u"Main");
  EXPECT_THROW(module->Run(u"Main"), Error);
  EXPECT_THROW(module->AddCode(u"x = 1"), Error);
  EXPECT_TRUE(module->Procedures().empty());
  EXPECT_EQ(module->Name(), u"init");
}

}  // namespace
}  // namespace cardwright
