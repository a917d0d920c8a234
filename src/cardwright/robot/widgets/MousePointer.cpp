// SPDX-License-Identifier: MIT
#include "cardwright/robot/widgets/MousePointer.h"

#include <QCursor>

namespace cardwright::robot {

int PointerNumber(const QWidget& widget) {
  constexpr int kOther = 99;
  if (!widget.testAttribute(Qt::WA_SetCursor)) return 0;
  switch (widget.cursor().shape()) {
    case Qt::ArrowCursor: return 1;
    case Qt::CrossCursor: return 2;
    case Qt::IBeamCursor: return 3;
    case Qt::SizeBDiagCursor: return 6;
    case Qt::SizeVerCursor: return 7;
    case Qt::SizeFDiagCursor: return 8;
    case Qt::SizeHorCursor: return 9;
    case Qt::UpArrowCursor: return 10;
    case Qt::WaitCursor: return 11;
    case Qt::ForbiddenCursor: return 12;
    case Qt::BusyCursor: return 13;
    case Qt::WhatsThisCursor: return 14;
    case Qt::SizeAllCursor: return 15;
    default: return kOther;
  }
}

}  // namespace cardwright::robot
