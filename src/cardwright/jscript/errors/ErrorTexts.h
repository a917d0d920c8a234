#pragma once

#include "cardwright/automation/Text.h"
#include "cardwright/jscript/errors/ErrorNumbers.h"

namespace cardwright::jscript {

inline constexpr char16_t kRuntimeErrorSource[] = u"Microsoft JScript runtime error";
inline constexpr char16_t kCompilationErrorSource[] = u"Microsoft JScript compilation error";

/// Text of an error of the language; "Unknown runtime error" where it has none.
Text ErrorText(int number);

}  // namespace cardwright::jscript
