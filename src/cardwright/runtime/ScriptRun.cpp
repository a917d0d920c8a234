// SPDX-License-Identifier: MIT
#include "cardwright/runtime/ScriptRun.h"

#include "cardwright/runtime/FormControls.h"
#include "cardwright/runtime/FormInput.h"
#include "cardwright/runtime/ScriptDebugger.h"
#include "cardwright/shared/HostExecutor.h"
#include "cardwright/shared/Messages.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/shared/ScriptText.h"

namespace cardwright {
namespace {

constexpr int kInvalidOwner = static_cast<int>(ErrorNumber::InvalidPropertyValue);

// Held by whoever runs a script: it may end the library.
Ref<FormControls> ScriptControls() {
  return Ref<FormControls>(dynamic_cast<FormControls*>(Module().formControlsObject.get()));
}

Text FailureText(const Error& failure, bool startsScript) {
  const ScriptError inScript = Module().scriptControl->LastError();
  if (inScript.number != 0)
    return GetMessage(messages::ScriptErrorAt,
                      {Variant(inScript.number), Variant(inScript.description),
                       Variant(inScript.line - Module().scriptLineOffset), Variant(inScript.column)});
  if (failure.Number() == kInvalidOwner) return GetMessage(messages::ConnectionInvalid);
  if (startsScript) return GetMessage(messages::MainMissing);
  return GetMessage(messages::ScriptError, {Variant(failure.Number()), Variant(failure.Description())});
}

void ReportFailure(const Error& failure, bool startsScript) {
  if (!Module().scriptControl || !Module().desktop) return;
  // Whoever stopped a script knows that it did not come to its end.
  if (Module().scriptControl->LastError().isInterruption) return;
  Module().desktop->ShowMessage(FailureText(failure, startsScript), BoxStyle::Exclamation, {});
}

std::vector<Text> UserNames(FormInput& form) {
  std::vector<Text> names;
  for (const Ref<IControl>& control : ControlsOf(form.Controls())) names.push_back(control->UserName());
  return names;
}

// The executor of this run: the shared one's connection, and in a debugging run the host's output.
Ref<HostExecutor> MakeExecutor(bool debug) {
  auto executor = MakeRef<HostExecutor>();
  executor->SetEditor(Module().attachedEditor);
  executor->SetHandle(SharedHost().Handle());
  if (debug) {
    executor->SetMode(ExecutorMode::Debug);
    executor->SetDebugOutput(Module().debugOutput);
  }
  return executor;
}

void StartScript(FormInput& form, const ComposedScript& composed, const Text& language, bool debug) {
  const bool debugging = debug && Module().debugOutput;
  const Ref<HostExecutor> executor = MakeExecutor(debugging);
  auto debugger = MakeRef<ScriptDebugger>();
  if (debugging) debugger->SetOutput(Module().debugOutput);
  const Ref<ScriptControl> engine = Module().scriptControl;
  engine->SetLanguage(language);
  engine->SetSiteWindow(debugging ? form.WindowHandle() : executor->Handle());
  engine->Reset();
  engine->SetTimeout(-1);
  engine->AddObject(u"OrvExecutor", executor, true);
  engine->AddObject(u"OrvDebugger", debugger, true);
  if (const Ref<FormControls> controls = ScriptControls()) controls->SetForm(Ref<Object>(&form));
  engine->AddObject(u"FrmCtrls", Module().formControlsObject, true);
  engine->AddCode(composed.code);
  const Ref<ScriptModule> init = engine->AddModule(u"init");
  init->AddCode(composed.mainCode);
  engine->SetAllowUI(true);
  init->Run(u"Main");
}

}  // namespace

bool RunScript(FormInput& form, const Text& script, const Text& language, bool debug) {
  if (language.IsEmpty() || script.IsEmpty()) return false;
  if (!SharedHost().IsConnected() || !Module().scriptControl) return false;
  try {
    const ComposedScript composed = ComposeScript(script, language, UserNames(form));
    Module().scriptLineOffset = composed.lineOffset;
    Module().programFile = form.ProjectFile();
    Module().program = composed.code + composed.mainCode;
    StartScript(form, composed, language, debug);
  } catch (const Error& failure) {
    ReportFailure(failure, true);
  }
  return true;
}

bool RunEvent(const Text& procedure) {
  if (!SharedHost().IsConnected()) return false;
  const Ref<ScriptControl> engine = Module().scriptControl;
  if (!engine) return true;
  if (!Module().procedureCache.Has(Module().scriptContent, procedure, Module().scriptLanguage)) return true;
  const Ref<FormControls> controls = ScriptControls();
  if (controls) controls->SetResponse(true);
  try {
    engine->Run(procedure);
  } catch (const Error& failure) {
    ReportFailure(failure, false);
    return true;
  }
  const bool response = !controls || controls->Response();
  if (controls) controls->SetResponse(true);
  return response;
}

}  // namespace cardwright
