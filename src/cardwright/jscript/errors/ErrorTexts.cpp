#include "cardwright/jscript/errors/ErrorTexts.h"

#include <algorithm>

#include "cardwright/automation/Errors.h"

namespace cardwright::jscript {
namespace {

struct Row {
  int number;
  const char16_t* text;
};

constexpr Row kTexts[] = {
    {429, u"Automation server can't create object"},
    {438, u"Object doesn't support this property or method"},
    {445, u"Object doesn't support this action"},
    {458, u"Variable uses an Automation type not supported in JScript"},
    {501, u"Cannot assign to variable"},
    {507, u"An exception occurred"},
    {1001, u"Out of memory"},
    {1002, u"Syntax error"},
    {1003, u"Expected ':'"},
    {1004, u"Expected ';'"},
    {1005, u"Expected '('"},
    {1006, u"Expected ')'"},
    {1007, u"Expected ']'"},
    {1008, u"Expected '{'"},
    {1009, u"Expected '}'"},
    {1010, u"Expected identifier"},
    {1011, u"Expected '='"},
    {1012, u"Expected '/'"},
    {1013, u"Invalid number"},
    {1014, u"Invalid character"},
    {1015, u"Unterminated string constant"},
    {1016, u"Unterminated comment"},
    {1018, u"'return' statement outside of function"},
    {1019, u"Can't have 'break' outside of loop"},
    {1020, u"Can't have 'continue' outside of loop"},
    {1023, u"Expected hexadecimal digit"},
    {1024, u"Expected 'while'"},
    {1025, u"Label redefined"},
    {1026, u"Label not found"},
    {1027, u"'default' can only appear once in a 'switch' statement"},
    {1028, u"Expected identifier, string or number"},
    {1029, u"Expected '@end'"},
    {1030, u"Conditional compilation is turned off"},
    {1031, u"Expected constant"},
    {1032, u"Expected '@'"},
    {1033, u"Expected 'catch'"},
    {1034, u"Expected 'var'"},
    {1035, u"'throw' must be followed by an expression on the same source line"},
    {5000, u"Cannot assign to 'this'"},
    {5001, u"Number expected"},
    {5002, u"Function expected"},
    {5003, u"Cannot assign to a function result"},
    {5004, u"Cannot index object"},
    {5005, u"String expected"},
    {5006, u"Date object expected"},
    {5007, u"Object expected"},
    {5008, u"Illegal assignment"},
    {5009, u"Undefined identifier"},
    {5010, u"Boolean expected"},
    {5011, u"Can't execute code from a freed script"},
    {5012, u"Object member expected"},
    {5013, u"VBArray expected"},
    {5014, u"JScript object expected"},
    {5015, u"Enumerator object expected"},
    {5016, u"Regular Expression object expected"},
    {5017, u"Syntax error in regular expression"},
    {5018, u"Unexpected quantifier"},
    {5019, u"Expected ']' in regular expression"},
    {5020, u"Expected ')' in regular expression"},
    {5021, u"Invalid range in character set"},
    {5022, u"Exception thrown and not caught"},
    {5023, u"Function does not have a valid prototype object"},
    {5024, u"The URI to be encoded contains an invalid character"},
    {5025, u"The URI to be decoded is not a valid encoding"},
    {5026, u"The number of fractional digits is out of range"},
    {5027, u"The precision is out of range"},
    {5028, u"Array or arguments object expected"},
    {5029, u"Array length must be a finite positive integer"},
    {5030, u"Array length must be assigned a finite positive number"},
    {5034, u"Circular reference in value argument not supported"},
};
static_assert(std::ranges::is_sorted(kTexts, {}, &Row::number));

}  // namespace

Text ErrorText(int number) {
  const auto* row = std::ranges::lower_bound(kTexts, number, {}, &Row::number);
  if (row != std::end(kTexts) && row->number == number) return row->text;
  return StandardErrorText(number);
}

}  // namespace cardwright::jscript
