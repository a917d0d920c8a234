// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/designer/DesignTool.h"
#include "cardwright/model/IControl.h"

namespace cardwright {

/// Moves or resizes the selected control by one of its grab handles.
class DragTool final : public DesignTool {
 public:
  DragTool(FormDesigner& designer, Selection& selection, DesignTool*& inUse, Ref<IControl> control,
           DragMode mode) noexcept;

  /// Follows the mouse, then gives the control its new place and selects it again.
  void Run();

 private:
  Start StartAt(ScreenPoint cursor) const override;
  ScreenRect OutlineOf(const Widget& widget, const FormRect& rectangle, const ScreenRect& bounds) const;
  bool IsTargetThere() const override;

  const Ref<IControl> m_Control;
  const DragMode m_Mode;
};

}  // namespace cardwright
