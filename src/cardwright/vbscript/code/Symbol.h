#pragma once

#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/code/ClassInfo.h"
#include "cardwright/vbscript/code/Procedure.h"

namespace cardwright::vbscript {

enum class SymbolKind : std::uint8_t {
  Unbound,  ///< nothing yet
  Variable,
  Constant,
  Procedure,
  Class,
  Builtin,     ///< function of the language's library
  HostObject,  ///< object that the embedding program added
  HostMember,  ///< global member of such an object
};

/// What a name outside procedures stands for.
struct Symbol {
  NameId name = kNoName;
  SymbolKind kind = SymbolKind::Unbound;
  Variant* variable = nullptr;  ///< Variable: `value`, or a register of the code that declared it
  Variant value;                ///< Constant, HostObject; HostMember: the object that has it
  Ref<const vbscript::Procedure> procedure;
  Ref<ClassInfo> cls;
  const vbscript::Builtin* builtin = nullptr;
  MemberId member = kNoMember;
};

}  // namespace cardwright::vbscript
