#pragma once

#include "automation/Text.h"
#include "platform/ScriptControl.h"

namespace cardwright {

/// The line that tells of an uncaught error: "FILE(line, column) VBScript runtime error: DESCRIPTION", both
/// counted from 1; the source that a script gave its error stands in place of "VBScript runtime error".
Text ErrorLine(std::u16string_view file, const ScriptError& error);

}  // namespace cardwright
