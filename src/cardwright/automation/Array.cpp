// SPDX-License-Identifier: MIT
#include "cardwright/automation/Array.h"

#include <algorithm>
#include <iterator>

#include "cardwright/automation/Errors.h"
#include "cardwright/automation/MemoryBudget.h"

namespace cardwright {

namespace {

constexpr std::size_t kMaxDimensions = 60;
// The most elements that the 32-bit platform of the language could address.
constexpr std::int64_t kMaxElements = 0x7FFFFFF;

std::size_t ElementCount(std::span<const Bounds> dimensions) {
  if (dimensions.empty() || dimensions.size() > kMaxDimensions) Raise(ErrorNumber::SubscriptOutOfRange);
  std::int64_t count = 1;
  for (const Bounds& bounds : dimensions) {
    const std::int64_t length = std::int64_t{bounds.upper} - bounds.lower + 1;
    if (length < 0) Raise(ErrorNumber::SubscriptOutOfRange);
    if (length > kMaxElements) Raise(ErrorNumber::OutOfMemory);
    count *= length;
    if (count > kMaxElements) Raise(ErrorNumber::OutOfMemory);
  }
  return static_cast<std::size_t>(count);
}

std::size_t Charged(std::size_t count) {
  MemoryBudget::Charge(count * sizeof(Variant));
  return count;
}

std::vector<Bounds> FromZero(std::size_t count) { return {Bounds{0, static_cast<std::int32_t>(count) - 1}}; }

}  // namespace

Array::Array(std::vector<Bounds> dimensions)
    : m_Dimensions(std::move(dimensions)), m_Values(Charged(ElementCount(m_Dimensions))) {
  CacheShape();
}

Array::Array() = default;

Array::~Array() { MemoryBudget::Refund(m_Values.size() * sizeof(Variant)); }

void Array::CacheShape() noexcept {
  m_Rank = static_cast<std::uint32_t>(m_Dimensions.size());
  m_First = m_Rank > 0 ? m_Dimensions[0] : Bounds{};
  m_Second = m_Rank > 1 ? m_Dimensions[1] : Bounds{};
  m_FirstCount = static_cast<std::uint32_t>(m_First.Count());
  m_SecondCount = static_cast<std::uint32_t>(m_Second.Count());
}

Ref<Array> Array::FromValues(std::vector<Variant> values) {
  Charged(values.size());
  auto array = MakeRef<Array>();
  array->m_Dimensions = FromZero(values.size());
  array->m_Values = std::move(values);
  array->CacheShape();
  return array;
}

Ref<Array> Array::FromTexts(std::span<const Text> texts) {
  return FromValues(std::vector<Variant>(texts.begin(), texts.end()));
}

Variant& Array::At(std::span<const std::int32_t> indices) { return m_Values[Position(indices)]; }

std::size_t Array::Position(std::span<const std::int32_t> indices) const {
  if (indices.empty() || indices.size() != m_Dimensions.size()) Raise(ErrorNumber::SubscriptOutOfRange);
  std::size_t position = 0;
  std::size_t stride = 1;
  for (std::size_t i = 0; i < indices.size(); ++i) {
    const Bounds& bounds = m_Dimensions[i];
    if (indices[i] < bounds.lower || indices[i] > bounds.upper) Raise(ErrorNumber::SubscriptOutOfRange);
    position += stride * static_cast<std::size_t>(std::int64_t{indices[i]} - bounds.lower);
    stride *= static_cast<std::size_t>(bounds.Count());
  }
  return position;
}

void Array::ResizeLast(std::int32_t upper) {
  std::vector<Bounds> dimensions = m_Dimensions;
  if (dimensions.empty()) Raise(ErrorNumber::SubscriptOutOfRange);
  dimensions.back().upper = upper;
  const std::size_t count = ElementCount(dimensions);
  if (count > m_Values.size()) Charged(count - m_Values.size());
  const std::size_t before = m_Values.size();
  if (count > m_Values.capacity()) m_Values.reserve(std::max(count, before + before / 2));
  // Removed values are released last: that may run code that uses this array.
  std::vector<Variant> cut;
  if (count < before) {
    cut.assign(std::make_move_iterator(m_Values.begin() + static_cast<std::ptrdiff_t>(count)),
               std::make_move_iterator(m_Values.end()));
    MemoryBudget::Refund((before - count) * sizeof(Variant));
  }
  m_Values.resize(count);
  m_Dimensions = std::move(dimensions);
  CacheShape();
}

Ref<Array> Array::Copy() const {
  auto copy = FromValues(m_Values);
  copy->m_Dimensions = m_Dimensions;
  copy->CacheShape();
  return copy;
}

Array& Array::Writable(Variant& holder) {
  Variant& held = holder.Deref();
  if (!held.IsArray()) Raise(ErrorNumber::TypeMismatch);
  if (!held.ArrayPtr()->IsUnshared()) held = Variant(held.ArrayPtr()->Copy());
  return *held.ArrayPtr();
}

}  // namespace cardwright
