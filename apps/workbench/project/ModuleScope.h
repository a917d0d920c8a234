// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/shared/ModuleState.h"
#include "workbench/project/ProjectState.h"

namespace cardwright::workbench {

/// Sets script and scale of the thread to those of a project, for the scope's life. The thread has one of
/// each, and the form that was read last owns them, for example one that is being filled in.
class ModuleScope {
 public:
  ModuleScope(const Script& script, ScaleMode scale)
      : m_Before{Module().scriptLanguage, Module().scriptContent}, m_ScaleBefore(Module().formScaleMode) {
    Set(script, scale);
  }
  ~ModuleScope() { Set(m_Before, m_ScaleBefore); }
  ModuleScope(const ModuleScope&) = delete;
  ModuleScope& operator=(const ModuleScope&) = delete;

  static void Set(const Script& script, ScaleMode scale) {
    Module().scriptLanguage = script.language;
    Module().scriptContent = script.content;
    Module().formScaleMode = scale;
  }

 private:
  Script m_Before;
  ScaleMode m_ScaleBefore;
};

}  // namespace cardwright::workbench
