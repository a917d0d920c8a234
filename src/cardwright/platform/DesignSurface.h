// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>

#include "cardwright/platform/MenuItem.h"
#include "cardwright/platform/ScreenRect.h"
#include "cardwright/platform/Surface.h"

namespace cardwright {

/// Mouse pointers by the platform's numbers, which scripts read.
enum class PointerShape : int {
  Default = 0,
  Arrow = 1,
  Cross = 2,
  SizeAll = 5,
  SizeNeSw = 6,
  SizeNs = 7,
  SizeNwSe = 8,
  SizeWe = 9,
  Hourglass = 11,
};

/// Points to be set on a surface in black, at (column * step, row * step) in the surface's scale. First and
/// last are inclusive; a last before its first means none. The numbers may reach far beyond the surface.
struct GridPoints {
  int step = 1;         ///< distance of the points, in the surface's scale
  int firstColumn = 0;  ///< columns, from 0 at the left edge
  int lastColumn = -1;
  int firstRow = 0;  ///< rows, from 0 at the top edge
  int lastRow = -1;

  friend bool operator==(const GridPoints&, const GridPoints&) = default;
};

/// What the form designer asks of the toolkit around it, beyond what every visual control asks.
///
/// The surface owns nine grab handles and a box that holds the keyboard focus out of sight. They are widgets
/// like others, but have no name on the surface: no project can clash with them.
///
/// A numbered error of a listener's handler ends with the handler. A handler may end the designer and the
/// surface with it.
class DesignSurface : public Surface {
 public:
  /// @name What happens on the surface itself
  /// The one listener gets the mouse events and clicks of the bare surface (coordinates in its scale), of
  /// key-down wherever on the surface the focus is, and of each change of the surface's size, at once and
  /// whether or not it is seen. No click follows a press in which the mouse was released by ReleaseMouse.
  /// Null takes the listener away.
  virtual void SetListener(WidgetListener* listener) = 0;

  /// @name Appearance
  /// @{
  /// Colour of texts on the surface.
  virtual OleColor ForeColor() const = 0;
  virtual void SetForeColor(OleColor color) = 0;
  /// Pointer over the surface and its widgets.
  virtual PointerShape Pointer() const = 0;
  virtual void SetPointer(PointerShape pointer) = 0;
  /// Pointer over the whole screen; Default gives each window its own again.
  virtual void SetScreenPointer(PointerShape pointer) = 0;
  /// Takes away what PaintPoints has set.
  virtual void Cls() = 0;
  /// Sets points. They stay until Cls, whatever the surface's size.
  virtual void PaintPoints(const GridPoints& points) = 0;
  /// Repaints the surface at once.
  virtual void Repaint() = 0;
  /// Keeps the surface from being painted; each lock is followed by one unlock.
  virtual void LockRedraw(bool lock) = 0;
  /// @}

  /// @name Handles and focus
  /// @{
  /// One of the handles, 0 to 8: hidden at first. Their events go to their own listeners.
  virtual PictureWidget& Handle(int index) = 0;
  /// Moves all handles into a container, or onto the surface itself for null, in front of its other widgets.
  /// They come back to the surface, hidden, where a container is removed with them inside.
  virtual void PutHandlesInto(Widget* container) = 0;
  /// The box that holds the focus.
  virtual PictureWidget& FocusHolder() = 0;
  /// Gives the surface the keyboard focus.
  virtual void SetFocus() = 0;
  /// @}

  /// @name The mouse, while a drag runs
  /// @{
  /// Position of the mouse pointer.
  virtual ScreenPoint CursorPosition() const = 0;
  /// False too once the press is lost to us: the window hidden or no longer active, the press taken by
  /// another program, the surface gone.
  virtual bool IsLeftButtonDown() const = 0;
  /// Height of the mouse pointer in pixels.
  virtual int CursorHeight() const = 0;
  /// Takes the mouse from the widget that was pressed.
  virtual void ReleaseMouse() = 0;
  /// Outer rectangle of a widget that has a window of its own; that of the surface for null. Error 91 for a
  /// widget that is gone.
  virtual ScreenRect WindowRect(const Widget* widget) const = 0;
  /// Processes pending events, then waits a few milliseconds for more: a loop that polls the mouse uses no
  /// processor time while the mouse rests, and the window stays responsive. The designer may end meanwhile.
  virtual void Yield() = 0;
  /// Shows a rectangle's outline above everything on the surface, in place of the one shown before; none
  /// takes it away without a trace. `penWidth` is in pixels.
  virtual void ShowOutline(const std::optional<ScreenRect>& outline, int penWidth) = 0;
  /// Shows a line of text in a small window of its own; `place` is the window's left top corner. It takes
  /// neither focus nor mouse.
  virtual void ShowTooltip(const Text& text, ScreenPoint place) = 0;
  /// Hides the text of ShowTooltip.
  virtual void HideTooltip() = 0;
  /// @}

  /// Shows a menu at the mouse pointer and waits until an entry is chosen: its name, or "" where the menu was
  /// left without a choice. Either mouse button chooses. Entries that are not visible are left out.
  virtual Text ShowPopupMenu(std::span<const Ref<MenuItem>> items) = 0;
  /// Notifies the container that a property of this name, which its property bag keeps, has changed.
  virtual void NotifyPropertyChanged(std::u16string_view name) = 0;
};

}  // namespace cardwright
