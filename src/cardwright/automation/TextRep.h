// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// The shared characters of a Text, which follow this header in the same block of memory.
struct Text::Rep {
  std::uint32_t count;   ///< references
  std::size_t length;    ///< UTF-16 code units in use
  std::size_t capacity;  ///< UTF-16 code units that fit

  /// The code units.
  char16_t* Characters() noexcept { return reinterpret_cast<char16_t*>(this + 1); }
  /// The code units in use.
  std::u16string_view View() noexcept { return {Characters(), length}; }
  /// Adds a reference.
  void AddRef() noexcept { ++count; }
  /// Removes a reference, and frees the block with the last one.
  void Release() noexcept {
    if (--count == 0) Free(this);
  }

  /// One reference, no characters yet; error 7 for an impossible size.
  static Rep* Allocate(std::size_t capacity);
  /// Frees the block.
  static void Free(Rep* rep) noexcept;
};

inline void Text::Retain() const noexcept {
  if (m_Rep) m_Rep->AddRef();
}
inline void Text::Drop() noexcept { m_Rep->Release(); }
inline std::u16string_view Text::View() const noexcept {
  return m_Rep ? m_Rep->View() : std::u16string_view();
}

}  // namespace cardwright
