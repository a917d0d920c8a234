#include "hosting/FormScripts.h"

#include "hosting/FormScriptHost.h"
#include "platform/EngineControl.h"
#include "shared/ModuleState.h"

namespace cardwright {
namespace {

bool CanOwnDialogs(std::int32_t handle) {
  const ModuleState& module = Module();
  return module.connections.Find(handle) || (module.desktop && module.desktop->IsWindow(handle));
}

}  // namespace

void ProvideFormScripts(ScriptLanguages languages) {
  Module().makeScriptControl = [languages = std::move(languages)]() -> Ref<ScriptControl> {
    return MakeRef<EngineControl>(languages, std::make_unique<FormScriptHost>(), CanOwnDialogs);
  };
}

}  // namespace cardwright
