// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/code/ClassInfo.h"
#include "cardwright/vbscript/code/Procedure.h"

namespace cardwright::vbscript {

enum class SymbolKind : std::uint8_t {
  Unbound,
  Variable,
  Constant,
  Procedure,
  Class,
  Builtin,     ///< function of the language's library
  HostObject,  ///< object that the embedding program added
  HostMember,  ///< global member of such an object
};

/// The binding of a name outside procedures.
struct Symbol {
  NameId name = kNoName;
  SymbolKind kind = SymbolKind::Unbound;
  Variant* variable = nullptr;  ///< Variable: its storage, `value` or a register of the code that declares it
  Variant value;                ///< Constant, HostObject; HostMember: the object of the member
  Ref<const vbscript::Procedure> procedure;
  Ref<ClassInfo> cls;
  const vbscript::Builtin* builtin = nullptr;
  MemberId member = kNoMember;
};

}  // namespace cardwright::vbscript
