#include "cardwright/qt/surface/Pointers.h"

namespace cardwright::qt {

Qt::CursorShape ToCursorShape(PointerShape pointer) noexcept {
  switch (pointer) {
    case PointerShape::Default:
    case PointerShape::Arrow: return Qt::ArrowCursor;
    case PointerShape::Cross: return Qt::CrossCursor;
    case PointerShape::SizeAll: return Qt::SizeAllCursor;
    case PointerShape::SizeNeSw: return Qt::SizeBDiagCursor;
    case PointerShape::SizeNs: return Qt::SizeVerCursor;
    case PointerShape::SizeNwSe: return Qt::SizeFDiagCursor;
    case PointerShape::SizeWe: return Qt::SizeHorCursor;
    case PointerShape::Hourglass: return Qt::WaitCursor;
  }
  return Qt::ArrowCursor;
}

}  // namespace cardwright::qt
