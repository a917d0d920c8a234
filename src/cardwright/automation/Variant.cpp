// SPDX-License-Identifier: MIT
#include "cardwright/automation/Variant.h"

#include <utility>

#include "cardwright/automation/Array.h"
#include "cardwright/automation/Object.h"
#include "cardwright/automation/TextRep.h"

namespace cardwright {

Variant::Variant(Decimal value) noexcept
    : m_Header(HeaderOf(VarType::Decimal) | (value.negative ? kNegative : 0) |
               std::uint64_t{value.scale} << kScaleShift | std::uint64_t{value.high} << kHighShift) {
  m_Data.whole = static_cast<std::int64_t>(value.low);
}

Decimal Variant::DecimalValue() const noexcept {
  return {.low = static_cast<std::uint64_t>(m_Data.whole),
          .high = High(),
          .scale = static_cast<std::uint8_t>(m_Header >> kScaleShift),
          .negative = (m_Header & kNegative) != 0};
}

Variant::Variant(Text value) noexcept : m_Header(HeaderOf(VarType::String)) {
  m_Data.text = std::exchange(value.m_Rep, nullptr);
}

Variant::Variant(Ref<cardwright::Array> array) noexcept : m_Header(HeaderOf(VarType::Array)) {
  m_Data.array = array.Detach();
}

Variant Variant::Null() noexcept {
  Variant null;
  null.m_Header = HeaderOf(VarType::Null);
  return null;
}

Variant Variant::Nothing() noexcept {
  Variant nothing;
  nothing.m_Header = HeaderOf(VarType::Object);
  nothing.m_Data.object = nullptr;
  return nothing;
}

Variant Variant::ByRef(Variant& target) noexcept {
  // Refers to the end of a chain of references, as one in the middle may not live as long.
  Variant reference;
  if (target.IsByRef()) {
    reference.CopyBits(target);
  } else {
    reference.m_Header = HeaderOf(VarType::ByRef);
    reference.m_Data.reference = &target;
  }
  return reference;
}

Variant Variant::ByRefElement(Variant& holder, std::uint32_t position) noexcept {
  Variant reference;
  reference.m_Header = HeaderOf(VarType::ByRefElement) | std::uint64_t{position} << kHighShift;
  reference.m_Data.reference = &holder;
  return reference;
}

const Variant& Variant::ReadElement() const noexcept {
  static const Variant gone{};
  const Variant& holder = std::as_const(*m_Data.reference).Deref();
  if (!holder.IsArray() || High() >= holder.ArrayPtr()->Values().size()) return gone;
  return holder.ArrayPtr()->Values()[High()];
}

Variant& Variant::WriteElement() {
  Variant& holder = m_Data.reference->Deref();
  if (holder.IsArray() && High() < holder.ArrayPtr()->Values().size())
    return cardwright::Array::Writable(holder).Values()[High()];
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
  if (Type() == VarType::String) {
    if (m_Data.text) m_Data.text->AddRef();
  } else if (Type() == VarType::Object) {
    if (m_Data.object) m_Data.object->AddRef();
  } else {
    m_Data.array->AddRef();
  }
}

void Variant::Drop() noexcept {
  if (Type() == VarType::String) {
    if (m_Data.text) m_Data.text->Release();
  } else if (Type() == VarType::Object) {
    if (m_Data.object) m_Data.object->Release();
  } else {
    m_Data.array->Release();
  }
}

void Variant::ResetCounted() noexcept { const Variant old(std::move(*this)); }

void Variant::AssignCounted(const Variant& other) noexcept {
  Variant copy(other);
  Swap(copy);
}

void Variant::AssignCounted(Variant&& other) noexcept {
  Variant taken(std::move(other));
  Swap(taken);
}

}  // namespace cardwright
