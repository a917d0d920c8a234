// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "cardwright/designer/OutlineDrag.h"
#include "cardwright/designer/Placement.h"
#include "cardwright/designer/Selection.h"

namespace cardwright {

class FormDesigner;

/// A tool in use, from the press of the mouse to its release: a modal loop that polls the mouse and shows an
/// outline. A designer uses one at a time. While there is one, clicks, resizes and focus changes select and
/// report nothing. However the use ends, nothing of it stays on the screen.
class DesignTool {
 public:
  DesignTool(const DesignTool&) = delete;
  DesignTool& operator=(const DesignTool&) = delete;

 protected:
  /// `inUse` is the designer's tool in use: this one, from its construction to its destruction.
  DesignTool(FormDesigner& designer, Selection& selection, DesignTool*& inUse) noexcept;
  ~DesignTool();

  /// Where the outline begins.
  struct Start {
    DragMode mode = DragMode::BottomRight;
    FormRect rectangle;     ///< in the container
    ScreenRect outline;     ///< the same on the screen
    Ref<Widget> container;  ///< null for the surface
    ScreenRect bounds;      ///< of the container, on the screen
    MinimumSize minimum;
  };

  /// Follows the mouse to its release. False where the target, its container or the surface went away
  /// meanwhile.
  bool FollowMouse();
  /// The rectangle at the release. The movement is added to the start, so that fractions of a pixel are kept.
  FormRect Result() const;

  FormDesigner& Designer() const noexcept { return *m_Designer; }
  /// Error 91 once the surface has ended.
  DesignSurface& Canvas() const;
  ScaleMode Scale() const noexcept { return m_Scale; }
  float ToScale(int pixels) const { return PixelsToScale(static_cast<float>(pixels), m_Scale); }

 private:
  /// Where the outline begins for a press at this point.
  virtual Start StartAt(ScreenPoint cursor) const = 0;
  virtual bool IsTargetThere() const { return true; }

  void Begin();
  int GridStepInPixels() const;
  bool CanContinue() const;
  void MoveTo(ScreenPoint cursor);
  bool Trace(ScreenPoint from);
  void ShowOutline() const;
  void ClearScreen() const;
  Text TooltipText() const;
  FormRect RectangleOf(const ScreenRect& outline) const;

  const Ref<FormDesigner> m_Designer;  // a handler may let go of it
  Selection& m_Selection;
  DesignTool*& m_InUse;
  ScaleMode m_Scale = ScaleMode::Pixels;
  Start m_Start;
  ScreenPoint m_Cursor;
  int m_TooltipDistance = 0;  // below the mouse
  std::optional<OutlineDrag> m_Outline;
};

}  // namespace cardwright
