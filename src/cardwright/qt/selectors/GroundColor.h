#pragma once

#include <QApplication>
#include <QPalette>

#include "cardwright/qt/values/Colors.h"

namespace cardwright::qt {

/// Adds the colour of a selector's ground where it differs from what it would inherit.
inline void CollectGround(QPalette& own, const QPalette& inherited, OleColor color) {
  const QColor ground = ToQColor(color, QApplication::palette());
  if (inherited.color(QPalette::Active, QPalette::Window) != ground) own.setColor(QPalette::Window, ground);
}

}  // namespace cardwright::qt
