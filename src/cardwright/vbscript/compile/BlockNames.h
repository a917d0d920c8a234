// SPDX-License-Identifier: MIT
#pragma once

#include <unordered_map>

#include "cardwright/vbscript/code/Symbol.h"

namespace cardwright::vbscript {

/// A name that one source text defines outside procedures. These names are collected before anything is
/// compiled, so that every part of the text may use every other. They are bound in the module when all is
/// compiled.
struct BlockName {
  SymbolKind kind = SymbolKind::Unbound;  ///< Variable, Constant, Procedure or Class
  std::uint16_t variable = kNoRegister;   ///< Variable: its register in the code outside procedures
  const Variant* constant = nullptr;
};
using BlockNames = std::unordered_map<NameId, BlockName>;

}  // namespace cardwright::vbscript
