#pragma once

#include "cardwright/automation/Text.h"
#include "cardwright/platform/ScriptControl.h"

namespace cardwright {

/// The line that tells of an uncaught error: "FILE(line, column) LANGUAGE runtime error: DESCRIPTION", both
/// counted from 1; the source that a script gave its error stands in place of "LANGUAGE runtime error".
Text ErrorLine(std::u16string_view file, std::u16string_view language, const ScriptError& error);

}  // namespace cardwright
