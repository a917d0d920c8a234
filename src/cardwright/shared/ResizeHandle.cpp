// SPDX-License-Identifier: MIT
#include "cardwright/shared/ResizeHandle.h"

#include <utility>

#include "cardwright/shared/ModuleState.h"

namespace cardwright {

void PaintResizeHandle(PictureWidget& box, bool enabled) {
  const ModuleState& module = Module();
  OleColor fill = module.resizeHandleBackColor;
  OleColor edge = module.resizeHandleBorderColor;
  if (!enabled) std::swap(fill, edge);
  box.SetScale(module.formScaleMode);
  box.SetAutoRedraw(true);
  box.SetDrawWidth(1);
  box.SetBackColor(fill);
  box.Cls();
  const float line = PixelsToScale(static_cast<float>(box.DrawWidth()), module.formScaleMode);
  box.DrawBox(0, 0, box.ScaleWidth() - line, box.ScaleHeight() - line, edge);
}

}  // namespace cardwright
