// SPDX-License-Identifier: MIT
#include "cardwright/hosting/FormScripts.h"

#include "cardwright/hosting/FormScriptHost.h"
#include "cardwright/platform/EngineControl.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

bool CanOwnDialogs(std::int32_t handle) {
  const ModuleState& module = Module();
  return module.connections.Find(handle) || (module.desktop && module.desktop->IsWindow(handle));
}

}  // namespace

void ProvideFormScripts(ScriptLanguages languages, ClassRegistry restrictedClasses) {
  const auto makeHost = [classes = std::make_shared<ClassRegistry>(std::move(restrictedClasses))] {
    return std::make_unique<FormScriptHost>(classes);
  };
  Module().makeScriptControl = [languages = std::move(languages), makeHost]() -> Ref<ScriptControl> {
    return MakeRef<EngineControl>(languages, makeHost, CanOwnDialogs);
  };
}

}  // namespace cardwright
