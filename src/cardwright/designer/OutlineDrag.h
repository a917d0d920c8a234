// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/platform/ScreenRect.h"

namespace cardwright {

/// What a drag moves: the whole rectangle, or the edges at one of the grab handles. The numbers are those of
/// the handles.
enum class DragMode {
  Move = 0,
  BottomRight = 1,
  TopLeft = 2,
  Top = 3,
  TopRight = 4,
  Left = 5,
  Right = 6,
  BottomLeft = 7,
  Bottom = 8,
};

/// The rectangle with its edges in order.
ScreenRect Ordered(ScreenRect rect);

/// The smallest size in pixels that a drag gives a control; 0 means no limit.
struct MinimumSize {
  int width = 0;
  int height = 0;
};

/// The arithmetic of a drag: computes the outline after each move of the mouse. It knows rectangles on the
/// screen and nothing else.
class OutlineDrag {
 public:
  struct Setup {
    DragMode mode = DragMode::Move;
    ScreenRect start;
    ScreenPoint grip;      ///< the mouse at the press
    ScreenRect container;  ///< bounds of the outline
    int gridStep = 0;      ///< 0 for no grid; counted from the container's corner
    MinimumSize minimum;
  };

  explicit OutlineDrag(const Setup& setup);

  /// Follows the mouse. Returns whether the outline changed.
  bool MoveTo(ScreenPoint cursor);

  const ScreenRect& Start() const noexcept { return m_Setup.start; }
  const ScreenRect& Current() const noexcept { return m_Current; }

 private:
  ScreenRect Proposed(ScreenPoint cursor) const;
  void KeepMinimumSize(ScreenRect& proposed) const;
  void KeepInContainer(ScreenRect& proposed) const;
  void SnapToGrid(ScreenRect& proposed) const;

  Setup m_Setup;
  ScreenRect m_Current;
};

}  // namespace cardwright
