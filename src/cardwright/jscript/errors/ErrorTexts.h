// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Text.h"
#include "cardwright/jscript/errors/ErrorNumbers.h"

namespace cardwright::jscript {

inline constexpr char16_t kRuntimeErrorSource[] = u"Microsoft JScript runtime error";
inline constexpr char16_t kCompilationErrorSource[] = u"Microsoft JScript compilation error";

/// The text of an error; "Unknown runtime error" for a number that has none.
Text ErrorText(int number);

}  // namespace cardwright::jscript
