#pragma once

#include "cardwright/automation/Text.h"

namespace cardwright::jscript {

/// @name Numbers of the language's errors that the room raises itself.
/// @{
inline constexpr int kInvalidCall = 5, kOutOfMemory = 7, kOutOfTextSpace = 14, kUserInterrupt = 18,
                     kOutOfStack = 28, kCannotCreate = 429, kNoSuchMember = 438, kNotAnAction = 445,
                     kNoCollection = 451, kSyntaxError = 1002, kNotAFunction = 5002,
                     kCannotAssignToResult = 5003, kDateExpected = 5006, kObjectExpected = 5007,
                     kUndefinedName = 5009, kFreedScript = 5011, kArrayExpected = 5013, kNotCaught = 5022;
/// @}

inline constexpr char16_t kRuntimeErrorSource[] = u"Microsoft JScript runtime error";
inline constexpr char16_t kCompilationErrorSource[] = u"Microsoft JScript compilation error";

/// Text of an error of the language; "Unknown runtime error" where it has none.
Text ErrorText(int number);

}  // namespace cardwright::jscript
