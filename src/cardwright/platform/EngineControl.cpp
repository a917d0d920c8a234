// SPDX-License-Identifier: MIT
#include "cardwright/platform/EngineControl.h"

#include "cardwright/automation/Errors.h"

namespace cardwright {
namespace {

constexpr std::u16string_view kGlobalModule = u"Global";

}  // namespace

// One call into an engine. The engine lives until it returns, even where the code has reset the control; its
// error becomes the control's.
class EngineControl::Call {
 public:
  Call(EngineControl& control, std::shared_ptr<ScriptEngine> engine)
      : m_Engine(Required(std::move(engine))), m_Control(&control) {
    m_Control->m_IsUsed = true;
    m_Control->m_Error = {};
    m_Engine->ClearError();
    m_Control->m_Running.push_back(m_Engine.get());
  }
  ~Call() {
    m_Control->m_Running.pop_back();
    m_Control->m_Error = m_Engine->LastError();
  }
  Call(const Call&) = delete;
  Call& operator=(const Call&) = delete;

  ScriptEngine* operator->() const noexcept { return m_Engine.get(); }

 private:
  static std::shared_ptr<ScriptEngine> Required(std::shared_ptr<ScriptEngine> engine) {
    if (!engine) Raise(ErrorNumber::InvalidCall);
    return engine;
  }

  const std::shared_ptr<ScriptEngine> m_Engine;
  const Ref<EngineControl> m_Control;
};

// Outlives its engine: then every call is refused. As long as there is the engine there is the control, too.
class EngineControl::Module final : public ScriptModule {
 public:
  Module(EngineControl& control, std::u16string_view name, std::u16string_view inEngine)
      : m_Control(control), m_Engine(control.m_Engine), m_Name(name), m_InEngine(inEngine) {}

  Text Name() const override { return m_Name; }
  void AddCode(std::u16string_view code) override {
    Call(m_Control, m_Engine.lock())->AddCode(m_InEngine, code);
  }
  Variant Run(std::u16string_view procedure, Args args) override {
    return Call(m_Control, m_Engine.lock())->Run(m_InEngine, procedure, args);
  }
  std::vector<ScriptProcedure> Procedures() const override {
    const auto engine = m_Engine.lock();
    return engine ? engine->Procedures(m_InEngine) : std::vector<ScriptProcedure>();
  }

 private:
  EngineControl& m_Control;
  const std::weak_ptr<ScriptEngine> m_Engine;
  const Text m_Name, m_InEngine;
};

// What scripts are trusted with is theirs alone: one that goes on in an engine that was replaced keeps its
// host.
struct EngineControl::HostedEngine {
  std::unique_ptr<ScriptHost> host;
  std::unique_ptr<ScriptEngine> engine;
};

EngineControl::EngineControl(ScriptLanguages languages, HostMaker makeHost,
                             std::function<bool(std::int32_t)> isOwner)
    : m_Languages(std::move(languages)), m_MakeHost(std::move(makeHost)), m_IsOwner(std::move(isOwner)) {}

EngineControl::~EngineControl() = default;

ScriptEngine& EngineControl::Engine() const {
  if (!m_Engine) Raise(ErrorNumber::InvalidCall);
  return *m_Engine;
}

void EngineControl::Start() {
  m_Engine.reset();  // what its objects do at their end may use the control, or start it
  m_Modules.clear();
  m_Error = {};
  const ScriptLanguage* language = m_Languages.Named(m_Language);
  if (!language) Raise(ErrorNumber::InvalidCall);
  const auto hosted = std::make_shared<HostedEngine>();
  hosted->host = m_MakeHost();
  hosted->engine = language->makeEngine(*hosted->host);
  m_Engine = {hosted, hosted->engine.get()};
  m_Host = hosted->host.get();
  m_IsUsed = false;
  m_Engine->SetTimeout(m_Timeout);
  m_Engine->SetAllowUI(m_AllowUI);
  m_Host->SetAllowUI(m_AllowUI);
  m_Modules.push_back(MakeRef<Module>(*this, kGlobalModule, u""));
}

void EngineControl::SetLanguage(std::u16string_view language) {
  m_Language = language;
  Start();
}

void EngineControl::SetSiteWindow(std::int32_t handle) {
  if (!m_IsOwner(handle)) Raise(ErrorNumber::InvalidPropertyValue);
}

// Forms choose the language and reset for each script, and an engine of JScript takes milliseconds to make.
void EngineControl::Reset() {
  if (m_IsUsed || !m_Engine) Start();
}

void EngineControl::SetTimeout(std::int32_t milliseconds) {
  m_Timeout = milliseconds;
  Engine().SetTimeout(milliseconds);
}

void EngineControl::SetAllowUI(bool allowed) {
  m_AllowUI = allowed;
  Engine().SetAllowUI(allowed);
  m_Host->SetAllowUI(allowed);
}

void EngineControl::AddObject(std::u16string_view name, Ref<Object> object, bool addMembers) {
  m_IsUsed = true;
  Engine().AddObject(name, std::move(object), addMembers);
}

void EngineControl::AddCode(std::u16string_view code) { Call(*this, m_Engine)->AddCode({}, code); }

Ref<ScriptModule> EngineControl::AddModule(std::u16string_view name) {
  m_IsUsed = true;
  Engine().AddModule(name);
  return m_Modules.emplace_back(MakeRef<Module>(*this, name, name));
}

Variant EngineControl::Run(std::u16string_view procedure, Args args) {
  return Call(*this, m_Engine)->Run({}, procedure, args);
}

void EngineControl::Interrupt() noexcept {
  for (ScriptEngine* engine : m_Running) engine->Interrupt();
}

}  // namespace cardwright
