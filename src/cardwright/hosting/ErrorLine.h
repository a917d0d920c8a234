// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Text.h"
#include "cardwright/platform/ScriptControl.h"

namespace cardwright {

/// The message for an uncaught error: "FILE(line, column) LANGUAGE runtime error: DESCRIPTION", both counted
/// from 1. A source that the script gave its error replaces "LANGUAGE runtime error".
Text ErrorLine(std::u16string_view file, std::u16string_view language, const ScriptError& error);

}  // namespace cardwright
