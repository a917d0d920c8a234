// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "cardwright/automation/Object.h"
#include "cardwright/automation/Text.h"

namespace cardwright::vbscript {

/// How a function tells characters apart: vbBinaryCompare and vbTextCompare.
enum class CompareMode : std::uint8_t { Binary = 0, Text = 1 };

/// The mode in an argument that may be left out; error 94 for Null, 5 for another number than 0 and 1.
CompareMode CompareModeOf(Args args, std::size_t index);

/// Position of the first occurrence of `part` from `from` on, or npos.
inline std::size_t Find(std::u16string_view text, std::u16string_view part, std::size_t from,
                        CompareMode mode) noexcept {
  return mode == CompareMode::Text ? cardwright::FindNoCase(text, part, from)
                                   : cardwright::Find(text, part, from);
}
/// The bytes of the UTF-16 units, low byte first.
std::string_view BytesOf(std::u16string_view text) noexcept;
/// Like Find in bytes. Compared as texts they are found at the first byte of a character only.
std::size_t FindBytes(std::u16string_view text, std::u16string_view part, std::size_t from,
                      CompareMode mode) noexcept;
/// Position of the last occurrence, or npos.
std::size_t FindLast(std::u16string_view text, std::u16string_view part, CompareMode mode) noexcept;
/// -1, 0 or 1 as `a` comes before `b`, is the same, or comes after it. Binary order is that of the UTF-16
/// units.
int Compare(std::u16string_view a, std::u16string_view b, CompareMode mode) noexcept;

}  // namespace cardwright::vbscript
