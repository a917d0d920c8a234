// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "cardwright/automation/Ref.h"
#include "cardwright/automation/Text.h"
#include "cardwright/automation/Variant.h"

namespace cardwright {

/// Bounds of one dimension, both included.
struct Bounds {
  std::int32_t lower = 0;   ///< the smallest index
  std::int32_t upper = -1;  ///< the largest index; lower - 1 for no elements
  /// The number of elements; 0 for an empty dimension.
  std::int32_t Count() const noexcept { return upper - lower + 1; }
};

/// Array of variants with one to sixty dimensions, the first index varying fastest. Arrays in Variants have
/// value semantics by copy on write: get a shared array for writing by Writable, which copies it.
class Array final : public RefCounted {
 public:
  /// An array of Empty values with these bounds. Error 9 for no or too many dimensions, or an upper bound
  /// below the lower one; 7 if it would be too large.
  explicit Array(std::vector<Bounds> dimensions);
  /// An array without dimensions yet, as `Dim a()` makes it: error 9 for any index.
  Array();
  ~Array() override;
  /// An array of one dimension, from 0, with these values.
  static Ref<Array> FromValues(std::vector<Variant> values);
  /// An array of one dimension, from 0, with these texts.
  static Ref<Array> FromTexts(std::span<const Text> texts);

  /// The bounds of each dimension; empty for an array without dimensions.
  std::span<const Bounds> Dimensions() const noexcept { return m_Dimensions; }
  /// All elements, the first index varying fastest.
  std::span<Variant> Values() noexcept { return m_Values; }
  std::span<const Variant> Values() const noexcept { return m_Values; }
  /// Element at the indices, one for each dimension; error 9 outside the bounds or for a wrong count.
  Variant& At(std::span<const std::int32_t> indices);
  /// The same for one and two indices; null where At would fail.
  Variant* Find(std::int32_t i) noexcept {
    const auto offset = static_cast<std::uint32_t>(i) - static_cast<std::uint32_t>(m_First.lower);
    return m_Rank == 1 && offset < m_FirstCount ? m_Values.data() + offset : nullptr;
  }
  Variant* Find(std::int32_t i, std::int32_t j) noexcept {
    const auto offset = static_cast<std::uint32_t>(i) - static_cast<std::uint32_t>(m_First.lower);
    const auto row = static_cast<std::uint32_t>(j) - static_cast<std::uint32_t>(m_Second.lower);
    return m_Rank == 2 && offset < m_FirstCount && row < m_SecondCount
               ? m_Values.data() + (std::size_t{row} * m_FirstCount + offset)
               : nullptr;
  }
  /// Position of an element in Values(); error 9 as At.
  std::size_t Position(std::span<const std::int32_t> indices) const;
  /// Changes the upper bound of the last dimension and keeps the values; error 9 for a bound below the lower
  /// one.
  void ResizeLast(std::int32_t upper);
  /// A deep copy of the array with values of its own; it is neither fixed nor locked.
  Ref<Array> Copy() const;

  /// @name Fixed size: a fixed array cannot be redimensioned, but its copies can.
  /// @{
  bool IsFixed() const noexcept { return m_Fixed; }
  void SetFixed() noexcept { m_Fixed = true; }
  /// @}
  /// @name Lock of an enumeration: it holds a reference that does not count as sharing.
  /// @{
  bool IsLocked() const noexcept { return m_Locks != 0; }
  void Lock() noexcept {
    AddRef();
    ++m_Locks;
  }
  void Unlock() noexcept {
    --m_Locks;
    Release();
  }
  /// True where no other value holds the array.
  bool IsUnshared() const noexcept { return Count() == 1 + m_Locks; }
  /// @}
  /// The array in `holder`, copied first if it is shared; error 13 where `holder` has no array.
  static Array& Writable(Variant& holder);

 private:
  void CacheShape() noexcept;

  std::uint32_t m_Locks = 0;
  std::vector<Bounds> m_Dimensions;
  std::vector<Variant> m_Values;
  // The first two dimensions again, for the fast Find.
  Bounds m_First, m_Second;
  std::uint32_t m_Rank = 0, m_FirstCount = 0, m_SecondCount = 0;
  bool m_Fixed = false;
};

}  // namespace cardwright
