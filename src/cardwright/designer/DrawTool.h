// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/designer/DesignTool.h"

namespace cardwright {

/// Draws the rectangle of a new control.
class DrawTool final : public DesignTool {
 public:
  /// `container` is where the mouse was pressed: a widget that contains others, or null for the surface.
  DrawTool(FormDesigner& designer, Selection& selection, DesignTool*& inUse, Ref<Widget> container) noexcept;

  /// Follows the mouse. What is to be placed then, of the class that is chosen at the release; nothing where
  /// the container or the surface went away.
  std::optional<Placement> Run();

 private:
  Start StartAt(ScreenPoint cursor) const override;

  const Ref<Widget> m_Container;
};

}  // namespace cardwright
