// SPDX-License-Identifier: MIT
#pragma once

namespace cardwright::jscript {

/// @name Numbers of the language's errors. Scripts see them in `error.number`, hosts in ScriptError::number.
/// @{

// Errors that the language shares with the platform's.
inline constexpr int kInvalidCall = 5, kOutOfMemory = 7, kOutOfStringSpace = 14, kUserInterrupt = 18,
                     kOutOfStack = 28, kCannotCreateObject = 429, kNoSuchMember = 438,
                     kActionNotSupported = 445, kNotACollection = 451, kTypeNotSupported = 458,
                     kCannotAssignToVariable = 501, kExceptionOccurred = 507;

// Errors of compilation.
inline constexpr int kCompilerOutOfMemory = 1001, kSyntaxError = 1002, kExpectedColon = 1003,
                     kExpectedSemicolon = 1004, kExpectedOpenParenthesis = 1005,
                     kExpectedCloseParenthesis = 1006, kExpectedCloseBracket = 1007,
                     kExpectedOpenBrace = 1008, kExpectedCloseBrace = 1009, kExpectedIdentifier = 1010,
                     kExpectedEquals = 1011, kExpectedSlash = 1012, kInvalidNumber = 1013,
                     kInvalidCharacter = 1014, kUnterminatedString = 1015, kUnterminatedComment = 1016,
                     kReturnOutsideFunction = 1018, kBreakOutsideLoop = 1019, kContinueOutsideLoop = 1020,
                     kExpectedHexadecimalDigit = 1023, kExpectedWhile = 1024, kLabelRedefined = 1025,
                     kLabelNotFound = 1026, kSecondDefault = 1027, kExpectedPropertyName = 1028,
                     kExpectedConditionalEnd = 1029, kConditionalCompilationOff = 1030,
                     kExpectedConstant = 1031, kExpectedAtSign = 1032, kExpectedCatch = 1033,
                     kExpectedVar = 1034, kThrowWithoutExpression = 1035;

// Errors at run time.
inline constexpr int kCannotAssignToThis = 5000, kNumberExpected = 5001, kFunctionExpected = 5002,
                     kCannotAssignToResult = 5003, kCannotIndexObject = 5004, kStringExpected = 5005,
                     kDateExpected = 5006, kObjectExpected = 5007, kIllegalAssignment = 5008,
                     kUndefinedIdentifier = 5009, kBooleanExpected = 5010, kFreedScript = 5011,
                     kObjectMemberExpected = 5012, kVBArrayExpected = 5013, kScriptObjectExpected = 5014,
                     kEnumeratorExpected = 5015, kRegExpExpected = 5016, kRegExpSyntaxError = 5017,
                     kUnexpectedQuantifier = 5018, kRegExpExpectedCloseBracket = 5019,
                     kRegExpExpectedCloseParenthesis = 5020, kInvalidCharacterRange = 5021,
                     kUncaughtException = 5022, kInvalidPrototype = 5023, kInvalidCharacterToEncode = 5024,
                     kInvalidEncodingToDecode = 5025, kFractionDigitsOutOfRange = 5026,
                     kPrecisionOutOfRange = 5027, kArrayExpected = 5028, kInvalidArrayLength = 5029,
                     kInvalidAssignedArrayLength = 5030, kCircularReference = 5034;
/// @}

}  // namespace cardwright::jscript
