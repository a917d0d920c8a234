#include "cardwright/qt/VisualControl.h"

namespace cardwright::qt {

void VisualControl::TellNeedResize(float width, float height) {
  m_Needed = size();
  updateGeometry();
  Q_EMIT NeedResize(width, height);
}

}  // namespace cardwright::qt
