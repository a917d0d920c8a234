#include "qt/ListColors.h"

#include <QApplication>

#include "qt/Colors.h"

namespace cardwright::qt {

void CollectListColors(QPalette& own, const WidgetKind& kind, OleColor back, OleColor fore) {
  if (back != kind.backColor) own.setColor(QPalette::Button, ToQColor(back, QApplication::palette()));
  if (fore != kind.foreColor) {
    const QColor color = ToQColor(fore, QApplication::palette());
    own.setColor(QPalette::Active, QPalette::ButtonText, color);
    own.setColor(QPalette::Inactive, QPalette::ButtonText, color);
  }
}

}  // namespace cardwright::qt
