// SPDX-License-Identifier: MIT
#include "cardwright/qt/VisualControl.h"

namespace cardwright::qt {

void VisualControl::NotifyNeedResize(float width, float height) {
  m_Needed = size();
  updateGeometry();
  Q_EMIT NeedResize(width, height);
}

}  // namespace cardwright::qt
