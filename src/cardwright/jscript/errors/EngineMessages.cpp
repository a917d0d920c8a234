#include "cardwright/jscript/errors/EngineMessages.h"

#include <algorithm>

namespace cardwright::jscript {
namespace {

struct Row {
  std::string_view name;  // without the prefix that all have
  int number;
};

constexpr Row kRows[] = {
    {"ALLOC_OVERFLOW", 7},
    {"ASSIGN_TO_CALL", 5003},
    {"BAD_APPLY_ARGS", 5028},
    {"BAD_ARRAY_LENGTH", 5029},
    {"BAD_CLASS_RANGE", 5021},
    {"BAD_CONST_ASSIGN", 501},
    {"BAD_CONTINUE", 1020},
    {"BAD_ESCAPE", 1023},
    {"BAD_FOR_LEFTSIDE", 5008},
    {"BAD_INCOP_OPERAND", 5008},
    {"BAD_INSTANCEOF_RHS", 5002},
    {"BAD_LEFTSIDE_OF_ASS", 5008},
    {"BAD_PROP_ID", 1028},
    {"BAD_PROTOTYPE", 5023},
    {"BAD_RADIX", 5},
    {"BAD_REGEXP_FLAG", 5017},
    {"BAD_RETURN_OR_YIELD", 1018},
    {"BAD_SWITCH", 1002},
    {"BAD_URI", 5025},
    {"BRACKET_AFTER_LIST", 1007},
    {"BRACKET_IN_INDEX", 1007},
    {"BYTECODE_TOO_BIG", 1001},
    {"CANT_CONVERT_TO", 5007},
    {"CANT_DELETE", 445},
    {"CATCH_IDENTIFIER", 1010},
    {"CATCH_OR_FINALLY", 1033},
    {"COLON_AFTER_CASE", 1003},
    {"COLON_AFTER_ID", 1003},
    {"COLON_IN_COND", 1003},
    {"CURLY_AFTER_BODY", 1009},
    {"CURLY_AFTER_CATCH", 1009},
    {"CURLY_AFTER_FINALLY", 1009},
    {"CURLY_AFTER_LIST", 1009},
    {"CURLY_AFTER_TRY", 1009},
    {"CURLY_BEFORE_BODY", 1008},
    {"CURLY_BEFORE_CATCH", 1008},
    {"CURLY_BEFORE_CLASS", 1008},
    {"CURLY_BEFORE_FINALLY", 1008},
    {"CURLY_BEFORE_SWITCH", 1008},
    {"CURLY_BEFORE_TRY", 1008},
    {"CURLY_IN_COMPOUND", 1009},
    {"DUPLICATE_LABEL", 1025},
    {"EMPTY_CONSEQUENT", 1002},
    {"EOF_BEFORE_END_OF_LITERAL", 1015},
    {"EOF_IN_ESCAPE_IN_LITERAL", 1015},
    {"EOL_BEFORE_END_OF_STRING", 1015},
    {"GETTER_ONLY", 438},
    {"GET_MISSING_PRIVATE", 5015},
    {"IDSTART_AFTER_NUMBER", 1004},
    {"ILLEGAL_CHARACTER", 1014},
    {"IN_NOT_OBJECT", 5007},
    {"IN_STRING", 5007},
    {"JSON_BAD_PARSE", 1002},
    {"JSON_CYCLIC_VALUE", 5034},
    {"LABEL_NOT_FOUND", 1026},
    {"LINE_BREAK_AFTER_THROW", 1035},
    {"MALFORMED_ESCAPE", 1023},
    {"MISSING_EXPONENT", 1013},
    {"MISSING_EXPR_AFTER_THROW", 1035},
    {"MISSING_FORMAL", 1010},
    {"MISSING_HEXDIGITS", 1023},
    {"MISSING_PAREN", 5020},
    {"NAME_AFTER_DOT", 1010},
    {"NEED_DIET", 1001},
    {"NOTHING_TO_REPEAT", 5018},
    {"NOT_CONSTRUCTOR", 445},
    {"NOT_DEFINED", 5009},
    {"NOT_FUNCTION", 5002},
    {"NOT_ITERABLE", 5007},
    {"NOT_OBJORNULL", 5007},
    {"NO_BINDING_NAME", 1010},
    {"NO_PROPERTIES", 5007},
    {"NO_VARIABLE_NAME", 1010},
    {"OBJECT_REQUIRED", 5007},
    {"OBJECT_REQUIRED_ARG", 5007},
    {"OBJECT_REQUIRED_PROP_DESC", 5007},
    {"OUT_OF_MEMORY", 7},
    {"OVER_RECURSED", 28},
    {"PAREN_AFTER_ARGS", 1006},
    {"PAREN_AFTER_CATCH", 1006},
    {"PAREN_AFTER_COND", 1006},
    {"PAREN_AFTER_FOR", 1005},
    {"PAREN_AFTER_FORMAL", 1006},
    {"PAREN_AFTER_FOR_CTRL", 1006},
    {"PAREN_AFTER_SWITCH", 1006},
    {"PAREN_AFTER_WITH", 1006},
    {"PAREN_BEFORE_CATCH", 1005},
    {"PAREN_BEFORE_COND", 1005},
    {"PAREN_BEFORE_FORMAL", 1005},
    {"PAREN_BEFORE_SWITCH", 1005},
    {"PAREN_BEFORE_WITH", 1005},
    {"PAREN_IN_PAREN", 1006},
    {"PRECISION_RANGE", 5026},
    {"PROPERTY_FAIL", 5007},
    {"PROPERTY_FAIL_EXPR", 5007},
    {"PROPERTY_NOT_CALLABLE", 438},
    {"READ_ONLY", 501},
    {"RESERVED_ID", 1010},
    {"RESULTING_STRING_TOO_LARGE", 14},
    {"SEMI_AFTER_FOR_COND", 1004},
    {"SEMI_AFTER_FOR_INIT", 1004},
    {"SOURCE_TOO_LONG", 1001},
    {"TOO_DEEP", 28},
    {"TOO_MANY_DEFAULTS", 1027},
    {"TOUGH_BREAK", 1019},
    {"UNDECLARED_VAR", 5009},
    {"UNEXPECTED_TOKEN", 1002},
    {"UNEXPECTED_TOKEN_NO_EXPECT", 1004},
    {"UNEXPECTED_TYPE", 5007},
    {"UNMATCHED_RIGHT_PAREN", 5017},
    {"UNNAMED_FUNCTION_STMT", 1010},
    {"UNTERMINATED_COMMENT", 1016},
    {"UNTERMINATED_REGEXP", 1012},
    {"UNTERM_CLASS", 5019},
    {"WHILE_AFTER_DO", 1024},
};
static_assert(std::ranges::is_sorted(kRows, {}, &Row::name));

}  // namespace

std::optional<int> NumberOfMessage(std::string_view name) noexcept {
  constexpr std::string_view kPrefix = "JSMSG_";
  if (!name.starts_with(kPrefix)) return std::nullopt;
  name.remove_prefix(kPrefix.size());
  const auto* row = std::ranges::lower_bound(kRows, name, {}, &Row::name);
  if (row == std::end(kRows) || row->name != name) return std::nullopt;
  return row->number;
}

}  // namespace cardwright::jscript
