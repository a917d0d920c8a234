// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "cardwright/automation/Array.h"
#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/machine/RegisterView.h"

namespace cardwright::vbscript {

/// The state of a For Each loop, kept in a hidden register. While it lives its array is locked.
class Enumeration final : public Object {
 public:
  /// Of an array or of an object; error 451 for anything else.
  static Variant Of(const Variant& collection);
  /// Puts the next value into `variable`. False at the end; there the variable of a collection becomes Empty.
  /// Error 451 where `state` holds no enumeration because creating it failed.
  static bool Next(Variant& state, Variant& variable);

  explicit Enumeration(Ref<Array> array);
  explicit Enumeration(Ref<Object> object);
  ~Enumeration() override;

  Text TypeName() const override { return u"Object"; }
  MemberId FindMember(std::u16string_view) const override { return kNoMember; }
  Variant Invoke(MemberId member, CallKind kind, Args args) override;

 private:
  bool Advance(Variant& variable);

  Array* m_Array = nullptr;
  std::size_t m_Position = 0;
  Ref<Object> m_Object;
  std::unique_ptr<Enumerator> m_Enumerator;
};

/// R[a] = enumeration of R[b].
void PrepareEach(RegisterView view, Instruction i);

}  // namespace cardwright::vbscript
