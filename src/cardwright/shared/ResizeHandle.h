// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/platform/Widget.h"

namespace cardwright {

/// Paints a picture box as a grab handle in the thread's colours, which change places where it is disabled.
void PaintResizeHandle(PictureWidget& box, bool enabled);

}  // namespace cardwright
