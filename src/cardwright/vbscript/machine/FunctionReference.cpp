// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/FunctionReference.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/machine/Machine.h"

namespace cardwright::vbscript {

Variant FunctionReference::Invoke(MemberId member, CallKind kind, Args args) {
  if (member != 0 || !Allows(kind, CallKind::MethodOrGet)) Raise(ErrorNumber::NotSupported);
  if (!m_Link->machine) Raise(ErrorNumber::CannotPerform);
  return m_Link->machine->Call(*m_Procedure, nullptr, args);
}

}  // namespace cardwright::vbscript
