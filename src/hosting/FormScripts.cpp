#include "hosting/FormScripts.h"

#include "hosting/FormScriptHost.h"
#include "platform/EngineControl.h"
#include "shared/ModuleState.h"
#include "vbscript/Engine.h"

namespace cardwright {
namespace {

ScriptLanguages Languages() {
  ScriptLanguages languages;
  languages.Add(u"VBScript", [](ScriptHost& host) { return vbscript::MakeEngine(host); });
  return languages;
}

bool CanOwnDialogs(std::int32_t handle) {
  const ModuleState& module = Module();
  return module.connections.Find(handle) || (module.desktop && module.desktop->IsWindow(handle));
}

}  // namespace

void ProvideFormScripts() {
  Module().makeScriptControl = []() -> Ref<ScriptControl> {
    return MakeRef<EngineControl>(Languages(), std::make_unique<FormScriptHost>(), CanOwnDialogs);
  };
}

}  // namespace cardwright
