// SPDX-License-Identifier: MIT
#pragma once

namespace cardwright {

/// A place on the screen in pixels. Any origin serves, as long as all who give places share it: where a
/// toolkit does not know the screen's, that of the host's window.
struct ScreenPoint {
  int x = 0;  ///< to the right
  int y = 0;  ///< downwards

  friend bool operator==(const ScreenPoint&, const ScreenPoint&) = default;
};

/// A rectangle on the screen in pixels; `right` and `bottom` lie just outside.
struct ScreenRect {
  int left = 0;    ///< the first column of pixels
  int top = 0;     ///< the first row of pixels
  int right = 0;   ///< the first column right of the rectangle
  int bottom = 0;  ///< the first row below the rectangle

  /// @name Size in pixels
  /// @{
  int Width() const noexcept { return right - left; }
  int Height() const noexcept { return bottom - top; }
  /// @}

  friend bool operator==(const ScreenRect&, const ScreenRect&) = default;
};

}  // namespace cardwright
