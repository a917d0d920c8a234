#include "automation/Variant.h"

#include "automation/Array.h"
#include "automation/Object.h"
#include "automation/TextRep.h"

namespace cardwright {

Variant::Variant(Decimal value) noexcept
    : m_Type(VarType::Decimal), m_Scale(value.scale), m_Negative(value.negative), m_High(value.high) {
  m_Data.low = value.low;
}

Variant::Variant(Text value) noexcept : m_Type(VarType::String) {
  m_Data.text = std::exchange(value.m_Rep, nullptr);
}

Variant::Variant(Ref<cardwright::Array> array) noexcept : m_Type(VarType::Array) {
  m_Data.array = array.Detach();
}

Variant Variant::Null() noexcept {
  Variant null;
  null.m_Type = VarType::Null;
  return null;
}

Variant Variant::Nothing() noexcept {
  Variant nothing;
  nothing.m_Type = VarType::Object;
  nothing.m_Data.object = nullptr;
  return nothing;
}

Variant Variant::ByRef(Variant& target) noexcept {
  // A reference to a reference would outlive its middle, so it refers to the end of the chain.
  Variant reference;
  if (target.IsByRef()) {
    reference.TakeBits(target);
  } else {
    reference.m_Type = VarType::ByRef;
    reference.m_Data.reference = &target;
  }
  return reference;
}

Variant Variant::ByRefElement(Variant& holder, std::uint32_t position) noexcept {
  Variant reference;
  reference.m_Type = VarType::ByRefElement;
  reference.m_High = position;
  reference.m_Data.reference = &holder;
  return reference;
}

const Variant& Variant::ReadElement() const noexcept {
  static const Variant gone{};
  const Variant& holder = *m_Data.reference;
  if (!holder.IsArray() || m_High >= holder.ArrayPtr()->Values().size()) return gone;
  return holder.ArrayPtr()->Values()[m_High];
}

Variant& Variant::WriteElement() {
  Variant& holder = *m_Data.reference;
  if (holder.IsArray() && m_High < holder.ArrayPtr()->Values().size())
    return cardwright::Array::Writable(holder).Values()[m_High];
  static thread_local Variant nowhere;
  nowhere.Reset();
  return nowhere;
}

std::u16string_view Variant::StringView() const noexcept {
  return m_Data.text ? m_Data.text->View() : std::u16string_view();
}

Text Variant::String() const noexcept {
  Text text;
  text.m_Rep = m_Data.text;
  if (text.m_Rep) text.m_Rep->AddRef();
  return text;
}

void Variant::Append(std::u16string_view tail) {
  Text text;
  std::swap(text.m_Rep, m_Data.text);
  try {
    text += tail;
  } catch (...) {
    std::swap(text.m_Rep, m_Data.text);
    throw;
  }
  std::swap(text.m_Rep, m_Data.text);
}

void Variant::Retain() const noexcept {
  if (m_Type == VarType::String) {
    if (m_Data.text) m_Data.text->AddRef();
  } else if (m_Type == VarType::Object) {
    if (m_Data.object) m_Data.object->AddRef();
  } else {
    m_Data.array->AddRef();
  }
}

void Variant::Drop() noexcept {
  if (m_Type == VarType::String) {
    if (m_Data.text) m_Data.text->Release();
  } else if (m_Type == VarType::Object) {
    if (m_Data.object) m_Data.object->Release();
  } else {
    m_Data.array->Release();
  }
}

}  // namespace cardwright
