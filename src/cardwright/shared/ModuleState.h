// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "cardwright/automation/Object.h"
#include "cardwright/platform/Color.h"
#include "cardwright/platform/Desktop.h"
#include "cardwright/platform/HostConnection.h"
#include "cardwright/platform/Scale.h"
#include "cardwright/platform/ScriptControl.h"
#include "cardwright/shared/HostExecutor.h"
#include "cardwright/shared/ScriptText.h"

namespace cardwright {

/// First character of the number 10.3 in the current locale that is no digit.
Text FindDecimalSeparator();

/// What all objects of one thread share: the host's connections and settings names, the script engine with
/// the script of the form read last, and the defaults of appearance.
struct ModuleState {
  Ref<Object> attachedEditor;
  Ref<ScriptControl> scriptControl;
  Ref<Object> formControlsObject;
  Ref<Object> debugOutput;
  /// Scale of the form that was made or read last, not of each form: hosts and scripts read this one value.
  ScaleMode formScaleMode = ScaleMode::Pixels;
  std::int32_t resizeHandleDims = 7;  ///< side of a resize handle in pixels
  OleColor resizeHandleBackColor = ToOleColor(SystemColor::Highlight);
  OleColor resizeHandleBorderColor = ToOleColor(SystemColor::HighlightText);
  bool designDragging = false;
  Text settingsAppName;
  Text settingsSectionEditor;
  Text settingsSectionGlobal;
  Text settingsSectionOrvInfo;
  bool enableScreenKeyboard = false;
  Text decimalSeparator = FindDecimalSeparator();
  Text scriptContent;   ///< without its language line
  Text scriptLanguage;  ///< "VBScript" or "JScript" as the project has it
  OleColor defaultBackColor = 0;
  OleColor defaultForeColor = 0;
  std::int32_t scriptLineOffset = 0;  ///< declaration lines put before the user's script
  ProcedureCache procedureCache;      ///< of the script read last
  Text programFile;                   ///< form project whose script was started last
  Text program;                       ///< all that was composed of that script

  std::int32_t vellumCount = 0;  ///< application objects alive
  Connections connections;
  Desktop* desktop = nullptr;  ///< installed by the application; null without one
  /// Makes a script engine; installed by the application before the first Vellum, none without one.
  std::function<Ref<ScriptControl>()> makeScriptControl;
  Ref<HostExecutor> hostExecutor;
};

/// The calling thread's state.
ModuleState& Module();
/// The connection object that the thread shares, made at its first use.
HostExecutor& SharedHost();

}  // namespace cardwright
