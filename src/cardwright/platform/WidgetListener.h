// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace cardwright {

/// Mouse buttons and shift keys as the platform numbers them; both add up.
namespace MouseButton {
inline constexpr int Left = 1, Right = 2, Middle = 4;
}
namespace ShiftKey {
inline constexpr int Shift = 1, Ctrl = 2, Alt = 4;
}

/// Receives the events of one widget. Coordinates are inside the widget, in the surface's scale.
class WidgetListener {
 public:
  /// The widget was clicked, or its state was set.
  virtual void OnClick() {}
  /// Its text has changed.
  virtual void OnChange() {}
  /// It has received or lost the keyboard focus.
  virtual void OnGotFocus() {}
  virtual void OnLostFocus() {}
  /// A key code of 0 written back drops the key.
  virtual void OnKeyDown(int& /*keyCode*/, int& /*shift*/) {}
  /// The character typed; 0 written back drops it, another one takes its place.
  virtual void OnKeyPress(char16_t& /*key*/) {}
  /// @name The mouse. Button and shift are sums of MouseButton and ShiftKey.
  /// @{
  virtual void OnMouseDown(int /*button*/, int /*shift*/, float /*x*/, float /*y*/) {}
  virtual void OnMouseMove(int /*button*/, int /*shift*/, float /*x*/, float /*y*/) {}
  virtual void OnMouseUp(int /*button*/, int /*shift*/, float /*x*/, float /*y*/) {}
  /// @}
  /// A check box of a list view was clicked; `index` counts from 1.
  virtual void OnItemCheck(int /*index*/) {}
  /// The button of a selector was pressed: before its selection opens, and when it has closed again.
  virtual void OnBeforeButtonClick() {}
  virtual void OnAfterButtonClick() {}
  /// The widget gave itself another size, as one that follows its font does.
  virtual void OnResize() {}

 protected:
  ~WidgetListener() = default;
};

}  // namespace cardwright
