// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace cardwright::robot {

/// The platform's number for the mouse pointer over a widget: 0 for the default, 99 for a shape without a
/// number.
int PointerNumber(const QWidget& widget);

}  // namespace cardwright::robot
