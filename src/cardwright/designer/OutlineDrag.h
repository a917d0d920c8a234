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

/// Sizes in pixels under which a control is not made, each 0 where there is no such limit.
struct LeastSize {
  int width = 0;
  int height = 0;
};

/// The arithmetic of a drag: where the outline stands after each move of the mouse. It knows rectangles on
/// the screen and nothing else.
class OutlineDrag {
 public:
  struct Setup {
    DragMode mode = DragMode::Move;
    ScreenRect start;
    ScreenPoint grip;      ///< where the mouse took hold
    ScreenRect container;  ///< the outline never leaves it
    int gridStep = 0;      ///< 0 for no grid; counted from the container's corner
    LeastSize least;
  };

  explicit OutlineDrag(const Setup& setup);

  /// Follows the mouse; true where the outline stands elsewhere than before.
  bool MoveTo(ScreenPoint cursor);

  DragMode Mode() const noexcept { return m_Setup.mode; }
  const ScreenRect& Start() const noexcept { return m_Setup.start; }
  const ScreenRect& Current() const noexcept { return m_Current; }

 private:
  ScreenRect Proposed(ScreenPoint cursor) const;
  void HoldToLeastSize(ScreenRect& proposed) const;
  void HoldToContainer(ScreenRect& proposed) const;
  void HoldToGrid(ScreenRect& proposed) const;

  Setup m_Setup;
  ScreenRect m_Current;
};

}  // namespace cardwright
