#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "automation/Ref.h"
#include "automation/Text.h"
#include "automation/Variant.h"

namespace cardwright {

/// Bounds of one dimension, both included.
struct Bounds {
  std::int32_t lower = 0;
  std::int32_t upper = -1;
  std::int32_t Count() const noexcept { return upper - lower + 1; }
};

/// Array of variants in one to sixty dimensions, the first index running fastest. A Variant that holds an
/// array has value meaning: who writes to an array that is shared copies it first (Writable).
class Array final : public RefCounted {
 public:
  explicit Array(std::vector<Bounds> dimensions);
  static Ref<Array> FromValues(std::vector<Variant> values);
  static Ref<Array> FromTexts(std::span<const Text> texts);

  std::span<const Bounds> Dimensions() const noexcept { return m_Dimensions; }
  std::span<Variant> Values() noexcept { return m_Values; }
  std::span<const Variant> Values() const noexcept { return m_Values; }
  /// Element at the indices, one for each dimension; error 9 outside the bounds or for a wrong count.
  Variant& At(std::span<const std::int32_t> indices);
  Ref<Array> Copy() const;
  /// The array in `holder`, copied first if anybody else shares it; error 13 where `holder` has no array.
  static Array& Writable(Variant& holder);

 private:
  std::vector<Bounds> m_Dimensions;
  std::vector<Variant> m_Values;
};

}  // namespace cardwright
