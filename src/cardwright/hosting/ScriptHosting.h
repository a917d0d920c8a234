// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/hosting/ScriptDesktop.h"
#include "cardwright/hosting/ScriptJob.h"

namespace cardwright {

/// Runs a script file in the language of its extension, as a script host does: trusted, with the object
/// WScript and standard streams in UTF-8. Returns the exit status: 0, the one given to WScript.Quit, 1 after
/// an uncaught error, 2 where the file cannot be read, 130 after Ctrl+C. Errors are written to standard
/// error, a line each.
int RunScript(const ScriptJob& job, ScriptEnvironment& environment);

}  // namespace cardwright
