// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/machine/Instance.h"

namespace cardwright::vbscript {

/// The result of GetRef: a procedure as an object whose default member calls it.
class FunctionReference final : public Object {
 public:
  FunctionReference(Ref<const vbscript::Procedure> procedure, Ref<MachineLink> link)
      : m_Procedure(std::move(procedure)), m_Link(std::move(link)) {}

  Text TypeName() const override { return u"Object"; }
  MemberId FindMember(std::u16string_view) const override { return kNoMember; }
  MemberId DefaultMember() const override { return 0; }
  /// Error 17 once the engine is gone.
  Variant Invoke(MemberId member, CallKind kind, Args args) override;

  const vbscript::Procedure& Procedure() const noexcept { return *m_Procedure; }
  const vbscript::Machine* Machine() const noexcept { return m_Link->machine; }

 private:
  Ref<const vbscript::Procedure> m_Procedure;
  Ref<MachineLink> m_Link;
};

}  // namespace cardwright::vbscript
