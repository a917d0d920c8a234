#pragma once

#include "cardwright/hosting/ScriptDesktop.h"
#include "cardwright/hosting/ScriptJob.h"

namespace cardwright {

/// Runs a script file in the language of its extension the way a script host does: with the object WScript,
/// standard streams in UTF-8, trusted. Gives the exit status: 0, what WScript.Quit said, 1 after an uncaught
/// error, 2 where the file cannot be read, 130 after Ctrl+C. Reasons are told on standard error, a line each.
int RunScript(const ScriptJob& job, ScriptSurroundings& surroundings);

}  // namespace cardwright
