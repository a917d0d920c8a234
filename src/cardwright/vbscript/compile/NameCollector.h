// SPDX-License-Identifier: MIT
#pragma once

#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "cardwright/vbscript/code/Names.h"
#include "cardwright/vbscript/syntax/Ast.h"

namespace cardwright::vbscript {

/// The names in a body of code. They are collected before it is compiled: a variable exists from the start of
/// the body, wherever its Dim is.
struct NamesOfBody {
  struct Array {
    NameId name;
    std::span<const std::int32_t> bounds;
  };
  std::vector<NameId> variables;  ///< of Dim, in order, each once
  std::vector<NameId> redimmed;   ///< of ReDim, which declares names that are declared nowhere else
  std::vector<Array> arrays;      ///< variables declared with parentheses
  std::vector<std::pair<NameId, const Variant*>> constants;
  std::vector<NameId> mentioned;  ///< every name used other than as a member, each once
  std::unordered_set<NameId> assigned;
  std::uint16_t hidden = 0;  ///< hidden registers that nested loops, With and Select need at the same time
};

/// Hidden registers that each kind of statement needs.
inline constexpr std::uint16_t kForRegisters = 4, kEachRegisters = 2, kWithRegisters = 1,
                               kSelectRegisters = 1;

NamesOfBody CollectNames(Block body, Names& names);
NamesOfBody CollectNames(const Expr& expression, Names& names);

}  // namespace cardwright::vbscript
