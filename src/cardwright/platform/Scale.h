#pragma once

#include <cstdint>

namespace cardwright {

/// Unit of a form's geometry. Form projects hold the numbers.
enum class ScaleMode : std::int32_t { Twips = 1, Pixels = 3 };

/// A twip is 1/1440 inch; the platform that the file format comes from has 96 pixels to the inch.
inline constexpr float kTwipsPerPixel = 15.0F;

/// Any mode but twips counts in pixels, as form projects carry other numbers too.
constexpr float PixelsToScale(float pixels, ScaleMode mode) noexcept {
  return mode == ScaleMode::Twips ? pixels * kTwipsPerPixel : pixels;
}
constexpr float ScaleToPixels(float value, ScaleMode mode) noexcept {
  return mode == ScaleMode::Twips ? value / kTwipsPerPixel : value;
}
constexpr float ScaleToTwips(float value, ScaleMode mode) noexcept {
  return mode == ScaleMode::Twips ? value : value * kTwipsPerPixel;
}

}  // namespace cardwright
