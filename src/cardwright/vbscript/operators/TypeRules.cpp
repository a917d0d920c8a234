// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/operators/TypeRules.h"

#include <string_view>

namespace cardwright::vbscript {

namespace {

// A letter for each type: b Boolean, y Byte, i Integer, l Long, s Single, d Double, c Currency, t Date (a
// time), x Decimal (exact), & text joined to text.
consteval WorkingType WorkingTypeOf(char letter) {
  switch (letter) {
    case 'b': return WorkingType::Boolean;
    case 'y': return WorkingType::Byte;
    case 'i': return WorkingType::Integer;
    case 'l': return WorkingType::Long;
    case 's': return WorkingType::Single;
    case 'd': return WorkingType::Double;
    case 'c': return WorkingType::Currency;
    case 't': return WorkingType::Date;
    case 'x': return WorkingType::Decimal;
    case '&': return WorkingType::Text;
    default: throw "no type has this letter";
  }
}

// Each row has a letter and a blank for each column.
consteval RuleTable Rules(const std::array<std::string_view, kTabledTypes>& rows) {
  RuleTable table{};
  for (std::size_t row = 0; row < kTabledTypes; ++row) {
    if (rows[row].size() != 2 * kTabledTypes - 1) throw "a column is missing";
    for (std::size_t column = 0; column < kTabledTypes; ++column) {
      table[row][column] = WorkingTypeOf(rows[row][2 * column]);
    }
  }
  return table;
}

}  // namespace

// clang-format off

// A value added to Empty keeps its type, a string too. With Double the result is Currency here, but Double in a product.
constexpr RuleTable kSumRules = Rules({
    // Empty, Boolean, Byte, Integer, Long, Single, Double, Currency, Date, Decimal, Text
    "i i y i l s d c t x &",   // Empty
    "i i i i l s d c t x d",   // Boolean
    "y i y i l s d c t x d",   // Byte
    "i i i i l s d c t x d",   // Integer
    "l l l l l d d c t x d",   // Long
    "s s s s d s d c t x d",   // Single
    "d d d d d d d c t x d",   // Double
    "c c c c c c c c t x c",   // Currency
    "t t t t t t t t t t t",   // Date
    "x x x x x x x x t x x",   // Decimal
    "& d d d d d d c t x &",   // Text
});

constexpr RuleTable kDifferenceRules = Rules({
    "i i i i l s d c t x d",   // Empty
    "i i i i l s d c t x d",   // Boolean
    "i i y i l s d c t x d",   // Byte
    "i i i i l s d c t x d",   // Integer
    "l l l l l d d c t x d",   // Long
    "s s s s d s d c t x d",   // Single
    "d d d d d d d c t x d",   // Double
    "c c c c c c c c t x c",   // Currency
    "t t t t t t t t d t t",   // Date: the difference of two dates is a number of days
    "x x x x x x x x t x x",   // Decimal
    "d d d d d d d c t x d",   // Text
});

constexpr RuleTable kProductRules = Rules({
    "i i i i l s d c d x d",   // Empty
    "i i i i l s d c d x d",   // Boolean
    "i i y i l s d c d x d",   // Byte
    "i i i i l s d c d x d",   // Integer
    "l l l l l d d c d x d",   // Long
    "s s s s d s d c d x d",   // Single
    "d d d d d d d d d x d",   // Double
    "c c c c c c d c d x d",   // Currency
    "d d d d d d d d d x d",   // Date
    "x x x x x x x x x x x",   // Decimal
    "d d d d d d d d d x d",   // Text
});

constexpr RuleTable kQuotientRules = Rules({
    "d d d d d s d d d x d",   // Empty
    "d d d d d s d d d x d",   // Boolean
    "d d d d d s d d d x d",   // Byte
    "d d d d d s d d d x d",   // Integer
    "d d d d d d d d d x d",   // Long
    "s s s s d s d d d x d",   // Single
    "d d d d d d d d d x d",   // Double
    "d d d d d d d d d x d",   // Currency
    "d d d d d d d d d x d",   // Date
    "x x x x x x x x x x x",   // Decimal
    "d d d d d d d d d x d",   // Text
});

constexpr RuleTable kWholeRules = Rules({
    "i i i i l l l l l l l",   // Empty
    "i i i i l l l l l l l",   // Boolean
    "i i y i l l l l l l l",   // Byte
    "i i i i l l l l l l l",   // Integer
    "l l l l l l l l l l l",   // Long
    "l l l l l l l l l l l",   // Single
    "l l l l l l l l l l l",   // Double
    "l l l l l l l l l l l",   // Currency
    "l l l l l l l l l l l",   // Date
    "l l l l l l l l l l l",   // Decimal
    "l l l l l l l l l l l",   // Text
});

constexpr RuleTable kLogicRules = Rules({
    "i i i i l l l l l l l",   // Empty
    "i b i i l l l l l l l",   // Boolean
    "i i y i l l l l l l l",   // Byte
    "i i i i l l l l l l l",   // Integer
    "l l l l l l l l l l l",   // Long
    "l l l l l l l l l l l",   // Single
    "l l l l l l l l l l l",   // Double
    "l l l l l l l l l l l",   // Currency
    "l l l l l l l l l l l",   // Date
    "l l l l l l l l l l l",   // Decimal
    "l l l l l l l l l l l",   // Text
});

// clang-format on

}  // namespace cardwright::vbscript
