// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace cardwright {

/// Unit of a form's geometry. Form projects hold the numbers.
enum class ScaleMode : std::int32_t { Twips = 1, Pixels = 3 };

/// A twip is 1/1440 inch; the platform that the file format comes from has 96 pixels to the inch.
inline constexpr float kTwipsPerPixel = 15.0F;

/// A length of pixels in the scale. Any mode except twips counts as pixels, because form projects contain
/// other numbers too.
constexpr float PixelsToScale(float pixels, ScaleMode mode) noexcept {
  return mode == ScaleMode::Twips ? pixels * kTwipsPerPixel : pixels;
}
/// A length of the scale in pixels.
constexpr float ScaleToPixels(float value, ScaleMode mode) noexcept {
  return mode == ScaleMode::Twips ? value / kTwipsPerPixel : value;
}
/// A length of the scale in twips.
constexpr float ScaleToTwips(float value, ScaleMode mode) noexcept {
  return mode == ScaleMode::Twips ? value : value * kTwipsPerPixel;
}

}  // namespace cardwright
