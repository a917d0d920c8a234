// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QWidget>

#include "cardwright/automation/Text.h"
#include "cardwright/platform/Color.h"

namespace cardwright::robot {

/// The colour of a pixel of a widget as it is painted now. Error 5 for a point outside the widget.
OleColor PixelColor(QWidget& widget, QPoint at);
/// Saves a PNG of a widget with its children. Error 75 where the file cannot be written.
void SaveScreenshot(QWidget& widget, const Text& path);

}  // namespace cardwright::robot
