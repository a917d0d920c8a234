// SPDX-License-Identifier: MIT
#include "cardwright/jscript/errors/ErrorTexts.h"

#include <algorithm>

#include "cardwright/automation/Errors.h"

namespace cardwright::jscript {
namespace {

struct ErrorTextRow {
  int number;
  const char16_t* text;
};

constexpr ErrorTextRow kTexts[] = {
    {kCannotCreateObject, u"Automation server can't create object"},
    {kNoSuchMember, u"Object doesn't support this property or method"},
    {kActionNotSupported, u"Object doesn't support this action"},
    {kTypeNotSupported, u"Variable uses an Automation type not supported in JScript"},
    {kCannotAssignToVariable, u"Cannot assign to variable"},
    {kExceptionOccurred, u"An exception occurred"},
    {kCompilerOutOfMemory, u"Out of memory"},
    {kSyntaxError, u"Syntax error"},
    {kExpectedColon, u"Expected ':'"},
    {kExpectedSemicolon, u"Expected ';'"},
    {kExpectedOpenParenthesis, u"Expected '('"},
    {kExpectedCloseParenthesis, u"Expected ')'"},
    {kExpectedCloseBracket, u"Expected ']'"},
    {kExpectedOpenBrace, u"Expected '{'"},
    {kExpectedCloseBrace, u"Expected '}'"},
    {kExpectedIdentifier, u"Expected identifier"},
    {kExpectedEquals, u"Expected '='"},
    {kExpectedSlash, u"Expected '/'"},
    {kInvalidNumber, u"Invalid number"},
    {kInvalidCharacter, u"Invalid character"},
    {kUnterminatedString, u"Unterminated string constant"},
    {kUnterminatedComment, u"Unterminated comment"},
    {kReturnOutsideFunction, u"'return' statement outside of function"},
    {kBreakOutsideLoop, u"Can't have 'break' outside of loop"},
    {kContinueOutsideLoop, u"Can't have 'continue' outside of loop"},
    {kExpectedHexadecimalDigit, u"Expected hexadecimal digit"},
    {kExpectedWhile, u"Expected 'while'"},
    {kLabelRedefined, u"Label redefined"},
    {kLabelNotFound, u"Label not found"},
    {kSecondDefault, u"'default' can only appear once in a 'switch' statement"},
    {kExpectedPropertyName, u"Expected identifier, string or number"},
    {kExpectedConditionalEnd, u"Expected '@end'"},
    {kConditionalCompilationOff, u"Conditional compilation is turned off"},
    {kExpectedConstant, u"Expected constant"},
    {kExpectedAtSign, u"Expected '@'"},
    {kExpectedCatch, u"Expected 'catch'"},
    {kExpectedVar, u"Expected 'var'"},
    {kThrowWithoutExpression, u"'throw' must be followed by an expression on the same source line"},
    {kCannotAssignToThis, u"Cannot assign to 'this'"},
    {kNumberExpected, u"Number expected"},
    {kFunctionExpected, u"Function expected"},
    {kCannotAssignToResult, u"Cannot assign to a function result"},
    {kCannotIndexObject, u"Cannot index object"},
    {kStringExpected, u"String expected"},
    {kDateExpected, u"Date object expected"},
    {kObjectExpected, u"Object expected"},
    {kIllegalAssignment, u"Illegal assignment"},
    {kUndefinedIdentifier, u"Undefined identifier"},
    {kBooleanExpected, u"Boolean expected"},
    {kFreedScript, u"Can't execute code from a freed script"},
    {kObjectMemberExpected, u"Object member expected"},
    {kVBArrayExpected, u"VBArray expected"},
    {kScriptObjectExpected, u"JScript object expected"},
    {kEnumeratorExpected, u"Enumerator object expected"},
    {kRegExpExpected, u"Regular Expression object expected"},
    {kRegExpSyntaxError, u"Syntax error in regular expression"},
    {kUnexpectedQuantifier, u"Unexpected quantifier"},
    {kRegExpExpectedCloseBracket, u"Expected ']' in regular expression"},
    {kRegExpExpectedCloseParenthesis, u"Expected ')' in regular expression"},
    {kInvalidCharacterRange, u"Invalid range in character set"},
    {kUncaughtException, u"Exception thrown and not caught"},
    {kInvalidPrototype, u"Function does not have a valid prototype object"},
    {kInvalidCharacterToEncode, u"The URI to be encoded contains an invalid character"},
    {kInvalidEncodingToDecode, u"The URI to be decoded is not a valid encoding"},
    {kFractionDigitsOutOfRange, u"The number of fractional digits is out of range"},
    {kPrecisionOutOfRange, u"The precision is out of range"},
    {kArrayExpected, u"Array or arguments object expected"},
    {kInvalidArrayLength, u"Array length must be a finite positive integer"},
    {kInvalidAssignedArrayLength, u"Array length must be assigned a finite positive number"},
    {kCircularReference, u"Circular reference in value argument not supported"},
};
static_assert(std::ranges::is_sorted(kTexts, {}, &ErrorTextRow::number));

}  // namespace

Text ErrorText(int number) {
  const auto* row = std::ranges::lower_bound(kTexts, number, {}, &ErrorTextRow::number);
  if (row != std::end(kTexts) && row->number == number) return row->text;
  return StandardErrorText(number);
}

}  // namespace cardwright::jscript
