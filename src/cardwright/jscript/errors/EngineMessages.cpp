// SPDX-License-Identifier: MIT
#include "cardwright/jscript/errors/EngineMessages.h"

#include <algorithm>

#include "cardwright/jscript/errors/ErrorNumbers.h"

namespace cardwright::jscript {
namespace {

struct MessageRow {
  std::string_view name;  // without the common prefix
  int number;
};

constexpr MessageRow kEngineMessages[] = {
    {"ALLOC_OVERFLOW", kOutOfMemory},
    {"ASSIGN_TO_CALL", kCannotAssignToResult},
    {"BAD_APPLY_ARGS", kArrayExpected},
    {"BAD_ARRAY_LENGTH", kInvalidArrayLength},
    {"BAD_CLASS_RANGE", kInvalidCharacterRange},
    {"BAD_CONST_ASSIGN", kCannotAssignToVariable},
    {"BAD_CONTINUE", kContinueOutsideLoop},
    {"BAD_ESCAPE", kExpectedHexadecimalDigit},
    {"BAD_FOR_LEFTSIDE", kIllegalAssignment},
    {"BAD_INCOP_OPERAND", kIllegalAssignment},
    {"BAD_INSTANCEOF_RHS", kFunctionExpected},
    {"BAD_LEFTSIDE_OF_ASS", kIllegalAssignment},
    {"BAD_PROP_ID", kExpectedPropertyName},
    {"BAD_PROTOTYPE", kInvalidPrototype},
    {"BAD_RADIX", kInvalidCall},
    {"BAD_REGEXP_FLAG", kRegExpSyntaxError},
    {"BAD_RETURN_OR_YIELD", kReturnOutsideFunction},
    {"BAD_SWITCH", kSyntaxError},
    {"BAD_URI", kInvalidEncodingToDecode},
    {"BRACKET_AFTER_LIST", kExpectedCloseBracket},
    {"BRACKET_IN_INDEX", kExpectedCloseBracket},
    {"BYTECODE_TOO_BIG", kCompilerOutOfMemory},
    {"CANT_CONVERT_TO", kObjectExpected},
    {"CANT_DELETE", kActionNotSupported},
    {"CATCH_IDENTIFIER", kExpectedIdentifier},
    {"CATCH_OR_FINALLY", kExpectedCatch},
    {"COLON_AFTER_CASE", kExpectedColon},
    {"COLON_AFTER_ID", kExpectedColon},
    {"COLON_IN_COND", kExpectedColon},
    {"CURLY_AFTER_BODY", kExpectedCloseBrace},
    {"CURLY_AFTER_CATCH", kExpectedCloseBrace},
    {"CURLY_AFTER_FINALLY", kExpectedCloseBrace},
    {"CURLY_AFTER_LIST", kExpectedCloseBrace},
    {"CURLY_AFTER_TRY", kExpectedCloseBrace},
    {"CURLY_BEFORE_BODY", kExpectedOpenBrace},
    {"CURLY_BEFORE_CATCH", kExpectedOpenBrace},
    {"CURLY_BEFORE_CLASS", kExpectedOpenBrace},
    {"CURLY_BEFORE_FINALLY", kExpectedOpenBrace},
    {"CURLY_BEFORE_SWITCH", kExpectedOpenBrace},
    {"CURLY_BEFORE_TRY", kExpectedOpenBrace},
    {"CURLY_IN_COMPOUND", kExpectedCloseBrace},
    {"DUPLICATE_LABEL", kLabelRedefined},
    {"EMPTY_CONSEQUENT", kSyntaxError},
    {"EOF_BEFORE_END_OF_LITERAL", kUnterminatedString},
    {"EOF_IN_ESCAPE_IN_LITERAL", kUnterminatedString},
    {"EOL_BEFORE_END_OF_STRING", kUnterminatedString},
    {"GETTER_ONLY", kNoSuchMember},
    {"GET_MISSING_PRIVATE", kEnumeratorExpected},
    {"IDSTART_AFTER_NUMBER", kExpectedSemicolon},
    {"ILLEGAL_CHARACTER", kInvalidCharacter},
    {"IN_NOT_OBJECT", kObjectExpected},
    {"IN_STRING", kObjectExpected},
    {"JSON_BAD_PARSE", kSyntaxError},
    {"JSON_CYCLIC_VALUE", kCircularReference},
    {"LABEL_NOT_FOUND", kLabelNotFound},
    {"LINE_BREAK_AFTER_THROW", kThrowWithoutExpression},
    {"MALFORMED_ESCAPE", kExpectedHexadecimalDigit},
    {"MISSING_EXPONENT", kInvalidNumber},
    {"MISSING_EXPR_AFTER_THROW", kThrowWithoutExpression},
    {"MISSING_FORMAL", kExpectedIdentifier},
    {"MISSING_HEXDIGITS", kExpectedHexadecimalDigit},
    {"MISSING_PAREN", kRegExpExpectedCloseParenthesis},
    {"NAME_AFTER_DOT", kExpectedIdentifier},
    {"NEED_DIET", kCompilerOutOfMemory},
    {"NOTHING_TO_REPEAT", kUnexpectedQuantifier},
    {"NOT_CONSTRUCTOR", kActionNotSupported},
    {"NOT_DEFINED", kUndefinedIdentifier},
    {"NOT_FUNCTION", kFunctionExpected},
    {"NOT_ITERABLE", kObjectExpected},
    {"NOT_OBJORNULL", kObjectExpected},
    {"NO_BINDING_NAME", kExpectedIdentifier},
    {"NO_PROPERTIES", kObjectExpected},
    {"NO_VARIABLE_NAME", kExpectedIdentifier},
    {"OBJECT_REQUIRED", kObjectExpected},
    {"OBJECT_REQUIRED_ARG", kObjectExpected},
    {"OBJECT_REQUIRED_PROP_DESC", kObjectExpected},
    {"OUT_OF_MEMORY", kOutOfMemory},
    {"OVER_RECURSED", kOutOfStack},
    {"PAREN_AFTER_ARGS", kExpectedCloseParenthesis},
    {"PAREN_AFTER_CATCH", kExpectedCloseParenthesis},
    {"PAREN_AFTER_COND", kExpectedCloseParenthesis},
    {"PAREN_AFTER_FOR", kExpectedOpenParenthesis},
    {"PAREN_AFTER_FORMAL", kExpectedCloseParenthesis},
    {"PAREN_AFTER_FOR_CTRL", kExpectedCloseParenthesis},
    {"PAREN_AFTER_SWITCH", kExpectedCloseParenthesis},
    {"PAREN_AFTER_WITH", kExpectedCloseParenthesis},
    {"PAREN_BEFORE_CATCH", kExpectedOpenParenthesis},
    {"PAREN_BEFORE_COND", kExpectedOpenParenthesis},
    {"PAREN_BEFORE_FORMAL", kExpectedOpenParenthesis},
    {"PAREN_BEFORE_SWITCH", kExpectedOpenParenthesis},
    {"PAREN_BEFORE_WITH", kExpectedOpenParenthesis},
    {"PAREN_IN_PAREN", kExpectedCloseParenthesis},
    {"PRECISION_RANGE", kFractionDigitsOutOfRange},
    {"PROPERTY_FAIL", kObjectExpected},
    {"PROPERTY_FAIL_EXPR", kObjectExpected},
    {"PROPERTY_NOT_CALLABLE", kNoSuchMember},
    {"READ_ONLY", kCannotAssignToVariable},
    {"RESERVED_ID", kExpectedIdentifier},
    {"RESULTING_STRING_TOO_LARGE", kOutOfStringSpace},
    {"SEMI_AFTER_FOR_COND", kExpectedSemicolon},
    {"SEMI_AFTER_FOR_INIT", kExpectedSemicolon},
    {"SOURCE_TOO_LONG", kCompilerOutOfMemory},
    {"TOO_DEEP", kOutOfStack},
    {"TOO_MANY_DEFAULTS", kSecondDefault},
    {"TOUGH_BREAK", kBreakOutsideLoop},
    {"UNDECLARED_VAR", kUndefinedIdentifier},
    {"UNEXPECTED_TOKEN", kSyntaxError},
    {"UNEXPECTED_TOKEN_NO_EXPECT", kExpectedSemicolon},
    {"UNEXPECTED_TYPE", kObjectExpected},
    {"UNMATCHED_RIGHT_PAREN", kRegExpSyntaxError},
    {"UNNAMED_FUNCTION_STMT", kExpectedIdentifier},
    {"UNTERMINATED_COMMENT", kUnterminatedComment},
    {"UNTERMINATED_REGEXP", kExpectedSlash},
    {"UNTERM_CLASS", kRegExpExpectedCloseBracket},
    {"WHILE_AFTER_DO", kExpectedWhile},
};
static_assert(std::ranges::is_sorted(kEngineMessages, {}, &MessageRow::name));

}  // namespace

std::optional<int> NumberOfMessage(std::string_view name) noexcept {
  constexpr std::string_view kPrefix = "JSMSG_";
  if (!name.starts_with(kPrefix)) return std::nullopt;
  name.remove_prefix(kPrefix.size());
  const auto* row = std::ranges::lower_bound(kEngineMessages, name, {}, &MessageRow::name);
  if (row == std::end(kEngineMessages) || row->name != name) return std::nullopt;
  return row->number;
}

}  // namespace cardwright::jscript
