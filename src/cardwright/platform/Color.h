// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace cardwright {

/// OLE colour number: 0x00BBGGRR, or with the high bit set a system colour index.
using OleColor = std::int32_t;

/// System colours by their index (0x80000000 + index).
enum class SystemColor : std::int32_t {
  Window = 5,
  WindowText = 8,
  Highlight = 13,
  HighlightText = 14,
  ButtonFace = 15,
  GrayText = 17,
  ButtonText = 18,
};

/// The colour number of a system colour.
constexpr OleColor ToOleColor(SystemColor color) noexcept {
  return static_cast<OleColor>(0x80000000u | static_cast<std::uint32_t>(color));
}
/// Whether the number is a system colour index.
constexpr bool IsSystemColor(OleColor color) noexcept { return color < 0; }
/// The colour number of red, green and blue, 0 to 255 each.
constexpr OleColor Rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) noexcept {
  return red | (green << 8) | (blue << 16);
}

}  // namespace cardwright
