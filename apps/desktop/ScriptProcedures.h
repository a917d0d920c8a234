// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <vector>

namespace cardwright::desktop {

/// A procedure that a form's script defines.
struct ScriptProcedure {
  QString name;
  int line = 0;  ///< from 1, in the script
};

/// The procedures of a script in VBScript or JScript, in their order.
std::vector<ScriptProcedure> ProceduresOf(const QString& script, const QString& language);

}  // namespace cardwright::desktop
