#pragma once

#include <QWidget>

namespace cardwright::robot {

/// Number of the pointer that the mouse has over a widget, as the platform counts its pointers: 0 for that of
/// the system, 99 for a shape that it does not have.
int PointerNumber(const QWidget& widget);

}  // namespace cardwright::robot
