#pragma once

#include <unordered_map>

#include "cardwright/vbscript/code/Symbol.h"

namespace cardwright::vbscript {

/// What one source text defines outside procedures. It is known before any of it is compiled, so that every
/// part of the text may use every other; it becomes the module's when all is compiled.
struct BlockName {
  SymbolKind kind = SymbolKind::Unbound;  ///< Variable, Constant, Procedure or Class
  std::uint16_t variable = kNoRegister;   ///< Variable: its register in the outermost code
  const Variant* constant = nullptr;
};
using BlockNames = std::unordered_map<NameId, BlockName>;

}  // namespace cardwright::vbscript
