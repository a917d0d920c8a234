// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "cardwright/automation/Variant.h"

namespace cardwright::vbscript {

/// Type of an operand, in the order of the rows and columns of the tables below.
enum class OperandType : std::uint8_t {
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
  Unsupported,  ///< by any operator: an array, an error value
};
inline constexpr std::size_t kTabledTypes = 11;

/// The type in which an operator calculates. Where a result does not fit a whole type, Single or Date, it
/// gets a larger type.
enum class WorkingType : std::uint8_t {
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

using RuleTable = std::array<std::array<WorkingType, kTabledTypes>, kTabledTypes>;

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

constexpr OperandType OperandTypeOf(VarType type) noexcept {
  switch (type) {
    case VarType::Empty: return OperandType::Empty;
    case VarType::Null: return OperandType::Null;
    case VarType::Integer: return OperandType::Integer;
    case VarType::Long: return OperandType::Long;
    case VarType::Single: return OperandType::Single;
    case VarType::Double: return OperandType::Double;
    case VarType::Currency: return OperandType::Currency;
    case VarType::Date: return OperandType::Date;
    case VarType::String: return OperandType::Text;
    case VarType::Boolean: return OperandType::Boolean;
    case VarType::Decimal: return OperandType::Decimal;
    case VarType::Byte: return OperandType::Byte;
    default: return OperandType::Unsupported;
  }
}
constexpr WorkingType RuleOf(const RuleTable& table, OperandType left, OperandType right) noexcept {
  return table[static_cast<std::size_t>(left)][static_cast<std::size_t>(right)];
}

}  // namespace cardwright::vbscript
