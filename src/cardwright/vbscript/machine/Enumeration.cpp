// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/Enumeration.h"

#include "cardwright/automation/Errors.h"

namespace cardwright::vbscript {

Enumeration::Enumeration(Ref<Array> array) : m_Array(array.get()) { m_Array->Lock(); }

Enumeration::Enumeration(Ref<Object> object)
    : m_Object(std::move(object)), m_Enumerator(m_Object->Enumerate()) {}

Enumeration::~Enumeration() {
  if (m_Array) m_Array->Unlock();
}

Variant Enumeration::Invoke(MemberId, CallKind, Args) { Raise(ErrorNumber::NotSupported); }

Variant Enumeration::Of(const Variant& collection) {
  const Variant& held = collection.Deref();
  if (held.IsArray()) return Variant(MakeRef<Enumeration>(Ref<Array>(held.ArrayPtr())));
  if (!held.IsObject()) Raise(ErrorNumber::NotACollection);
  return Variant(MakeRef<Enumeration>(Ref<Object>(&RequireObject(held))));
}

bool Enumeration::Next(Variant& state, Variant& variable) {
  if (!state.IsObject()) Raise(ErrorNumber::NotACollection);
  return static_cast<Enumeration*>(state.ObjectPtr())->Advance(variable);
}

bool Enumeration::Advance(Variant& variable) {
  if (m_Array) {
    const auto values = static_cast<const Array*>(m_Array)->Values();
    if (m_Position >= values.size()) return false;
    variable = values[m_Position++];
    return true;
  }
  Variant value;
  const bool more = m_Enumerator->Next(value);
  variable = more ? std::move(value) : Variant();
  return more;
}

void PrepareEach(RegisterView view, Instruction i) {
  Variant enumeration = Enumeration::Of(view.R[i.b]);
  view.ClearTemporary(i.b);
  view.R[i.a] = std::move(enumeration);
}

}  // namespace cardwright::vbscript
