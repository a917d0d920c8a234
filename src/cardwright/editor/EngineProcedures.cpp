// SPDX-License-Identifier: MIT
#include "cardwright/editor/EngineProcedures.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {

namespace {

// Long enough for any script that only declares things, short enough for the user who opened a list.
constexpr std::int32_t kEnginePatience = 500;  // milliseconds

Ref<ScriptControl> EngineWith(std::u16string_view language, std::u16string_view script) {
  if (!Module().makeScriptControl) Raise(ErrorNumber::CannotCreateObject);
  const Ref<ScriptControl> engine = Module().makeScriptControl();
  engine->SetLanguage(language);
  engine->Reset();
  engine->SetAllowUI(false);
  engine->SetTimeout(kEnginePatience);
  engine->AddCode(script);
  return engine;
}

}  // namespace

std::vector<Text> ProceduresOfScript(std::u16string_view language, std::u16string_view script) {
  const Ref<ScriptControl> engine = EngineWith(language, script);
  std::vector<Text> names;
  for (const ScriptProcedure& procedure : engine->Modules().at(0)->Procedures())
    names.push_back(procedure.name);
  return names;
}

}  // namespace cardwright
