#pragma once

#include <optional>

#include "cardwright/designer/FormDesigner.h"

namespace cardwright {

/// One drag on a designer's surface, from the press to the release: a modal loop that polls the mouse and
/// shows an outline. All rectangles are in pixels of the screen, the result is in the surface's scale.
class FormDesigner::Drag {
 public:
  /// For null, of a new control's rectangle, which begins as an empty one at the mouse.
  Drag(FormDesigner& designer, Ref<IControl> control, DragMode mode);

  /// Follows the mouse until its button is let go. False where what was dragged, or what it stands in, went
  /// away meanwhile, or the designer's surface with it.
  bool Run();

  IControl* Target() const noexcept { return m_Control.get(); }
  /// Whether the target's kind takes its height from its font.
  bool HasFixedHeight() const;

  /// @name Where the drag has led. The movement is added to where it began, so that fractions of a pixel
  /// stay.
  /// @{
  float Left() const { return m_Left + Moved(Ordered().left - Start().left); }
  float Top() const { return m_Top + Moved(Ordered().top - Start().top); }
  float Width() const { return m_Width + Moved(Ordered().Width() - Start().Width()); }
  float Height() const { return m_Height + Moved(Ordered().Height() - Start().Height()); }
  /// @}

 private:
  DesignSurface& Canvas() const { return m_Designer.Canvas(); }
  ScreenRect StartOfControl(const ScreenRect& container) const;
  Ref<Widget> ContainerOfNew() const;
  LeastSize Least() const;
  void SetUp(DragMode mode);
  bool IsTargetThere() const;
  void Follow(ScreenPoint cursor);
  bool Trace(ScreenPoint from);
  void ShowOutline() const;
  Text TooltipText() const;
  const ScreenRect& Start() const { return m_Outline->Start(); }
  ScreenRect Ordered() const;
  float Moved(int pixels) const { return PixelsToScale(static_cast<float>(pixels), m_Scale); }

  FormDesigner& m_Designer;
  const Ref<IControl> m_Control;
  const ScaleMode m_Scale;
  Ref<Widget> m_Widget;     // of the control; null for a new one
  Ref<Widget> m_Container;  // null for the surface
  float m_Left = 0;
  float m_Top = 0;
  float m_Width = 0;
  float m_Height = 0;
  ScreenPoint m_Cursor;
  int m_TooltipDistance;  // below the mouse
  std::optional<OutlineDrag> m_Outline;
};

}  // namespace cardwright
