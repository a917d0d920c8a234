#pragma once

#include "cardwright/shared/ModuleState.h"
#include "workbench/project/ProjectState.h"

namespace cardwright::workbench {

/// Makes the script and the scale of a project those of the thread for a while. The thread has one of each,
/// which the form that was read last owns, as one that is being filled in.
class ModuleScope {
 public:
  ModuleScope(const Script& script, ScaleMode scale)
      : m_Before{Module().scriptLanguage, Module().scriptContent}, m_ScaleBefore(Module().formScaleMode) {
    Put(script, scale);
  }
  ~ModuleScope() { Put(m_Before, m_ScaleBefore); }
  ModuleScope(const ModuleScope&) = delete;
  ModuleScope& operator=(const ModuleScope&) = delete;

  static void Put(const Script& script, ScaleMode scale) {
    Module().scriptLanguage = script.language;
    Module().scriptContent = script.content;
    Module().formScaleMode = scale;
  }

 private:
  Script m_Before;
  ScaleMode m_ScaleBefore;
};

}  // namespace cardwright::workbench
