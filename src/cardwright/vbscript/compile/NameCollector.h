#pragma once

#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "cardwright/vbscript/code/Names.h"
#include "cardwright/vbscript/syntax/Ast.h"

namespace cardwright::vbscript {

/// What a body of code says of names, found before it is compiled, since variables exist from the start
/// wherever they are declared.
struct NamesOfBody {
  struct Array {
    NameId name;
    std::span<const std::int32_t> bounds;
  };
  std::vector<NameId> variables;  ///< of Dim, in order, each once
  std::vector<NameId> redimmed;   ///< of ReDim, which declares a name that nothing else does
  std::vector<Array> arrays;      ///< those declared with brackets
  std::vector<std::pair<NameId, const Variant*>> constants;
  std::vector<NameId> mentioned;  ///< every name used on its own, each once
  std::unordered_set<NameId> assigned;
  std::uint16_t hidden = 0;  ///< registers that its nested loops, With and Select need at the same time
};

/// Hidden registers that each kind of statement needs.
inline constexpr std::uint16_t kForRegisters = 4, kEachRegisters = 2, kWithRegisters = 1,
                               kSelectRegisters = 1;

NamesOfBody CollectNames(Block body, Names& names);
NamesOfBody CollectNames(const Expr& expression, Names& names);

}  // namespace cardwright::vbscript
