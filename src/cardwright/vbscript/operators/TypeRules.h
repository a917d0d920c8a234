#pragma once

#include <array>
#include <cstdint>

#include "cardwright/automation/Variant.h"

namespace cardwright::vbscript {

/// Type of an operand, in the order of the rows and columns of the tables below.
enum class Side : std::uint8_t {
  Empty,
  Boolean,
  Byte,
  Integer,
  Long,
  Single,
  Double,
  Currency,
  Date,
  Decimal,
  Text,
  Null,
  Unfit,  ///< what no operator takes: an array, an error value
};
inline constexpr std::size_t kTabledSides = 11;

/// Type in which an operator works. The whole types, Single and Date grow where a result does not fit.
enum class Working : std::uint8_t {
  Boolean,
  Byte,
  Integer,
  Long,
  Single,
  Double,
  Currency,
  Date,
  Decimal,
  Text
};

using RuleTable = std::array<std::array<Working, kTabledSides>, kTabledSides>;

/// @name The type rules, one table for a group of operators: row by the left operand, column by the right
/// one.
/// @{
extern const RuleTable kSumRules;         ///< +
extern const RuleTable kDifferenceRules;  ///< -
extern const RuleTable kProductRules;     ///< *
extern const RuleTable kQuotientRules;    ///< /
extern const RuleTable kWholeRules;       ///< \ and Mod
extern const RuleTable kLogicRules;       ///< And, Or, Xor, Eqv, Imp
/// @}

constexpr Side SideOf(VarType type) noexcept {
  switch (type) {
    case VarType::Empty: return Side::Empty;
    case VarType::Null: return Side::Null;
    case VarType::Integer: return Side::Integer;
    case VarType::Long: return Side::Long;
    case VarType::Single: return Side::Single;
    case VarType::Double: return Side::Double;
    case VarType::Currency: return Side::Currency;
    case VarType::Date: return Side::Date;
    case VarType::String: return Side::Text;
    case VarType::Boolean: return Side::Boolean;
    case VarType::Decimal: return Side::Decimal;
    case VarType::Byte: return Side::Byte;
    default: return Side::Unfit;
  }
}
constexpr Working RuleOf(const RuleTable& table, Side left, Side right) noexcept {
  return table[static_cast<std::size_t>(left)][static_cast<std::size_t>(right)];
}

}  // namespace cardwright::vbscript
