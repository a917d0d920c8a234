#pragma once

#include <QPoint>
#include <QWidget>

#include "cardwright/automation/Text.h"
#include "cardwright/platform/Color.h"

namespace cardwright::robot {

/// Colour of a pixel of a widget as it is painted now. Error 5 for a point outside.
OleColor PixelColor(QWidget& widget, QPoint at);
/// Writes a PNG of a widget with all that stands on it. Error 75 where it cannot be written.
void SavePicture(QWidget& widget, const Text& path);

}  // namespace cardwright::robot
