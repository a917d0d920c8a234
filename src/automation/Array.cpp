#include "automation/Array.h"

#include "automation/Errors.h"

namespace cardwright {

namespace {

constexpr std::size_t kMaxDimensions = 60;
// More elements than that could not be addressed by the platform's 32-bit memory.
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

std::vector<Bounds> FromZero(std::size_t count) { return {Bounds{0, static_cast<std::int32_t>(count) - 1}}; }

}  // namespace

Array::Array(std::vector<Bounds> dimensions)
    : m_Dimensions(std::move(dimensions)), m_Values(ElementCount(m_Dimensions)) {}

Ref<Array> Array::FromValues(std::vector<Variant> values) {
  auto array = MakeRef<Array>(FromZero(0));
  array->m_Dimensions = FromZero(values.size());
  array->m_Values = std::move(values);
  return array;
}

Ref<Array> Array::FromTexts(std::span<const Text> texts) {
  return FromValues(std::vector<Variant>(texts.begin(), texts.end()));
}

Variant& Array::At(std::span<const std::int32_t> indices) {
  if (indices.size() != m_Dimensions.size()) Raise(ErrorNumber::SubscriptOutOfRange);
  std::size_t position = 0;
  std::size_t stride = 1;
  for (std::size_t i = 0; i < indices.size(); ++i) {
    const Bounds& bounds = m_Dimensions[i];
    if (indices[i] < bounds.lower || indices[i] > bounds.upper) Raise(ErrorNumber::SubscriptOutOfRange);
    position += stride * static_cast<std::size_t>(std::int64_t{indices[i]} - bounds.lower);
    stride *= static_cast<std::size_t>(bounds.Count());
  }
  return m_Values[position];
}

Ref<Array> Array::Copy() const {
  auto copy = FromValues(m_Values);
  copy->m_Dimensions = m_Dimensions;
  return copy;
}

Array& Array::Writable(Variant& holder) {
  Variant& held = holder.Deref();
  if (!held.IsArray()) Raise(ErrorNumber::TypeMismatch);
  if (!held.ArrayPtr()->IsUnique()) held = Variant(held.ArrayPtr()->Copy());
  return *held.ArrayPtr();
}

}  // namespace cardwright
