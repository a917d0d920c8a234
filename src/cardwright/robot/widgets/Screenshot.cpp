// SPDX-License-Identifier: MIT
#include "cardwright/robot/widgets/Screenshot.h"

#include <QImage>
#include <QPixmap>

#include "cardwright/automation/Errors.h"
#include "cardwright/platform/Files.h"
#include "cardwright/qt/values/Colors.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::robot {
namespace {

constexpr int kPathOrFileAccess = 75;

}  // namespace

OleColor PixelColor(QWidget& widget, QPoint at) {
  if (!widget.rect().contains(at)) Raise(ErrorNumber::InvalidCall);
  return qt::FromQColor(widget.grab(QRect(at, QSize(1, 1))).toImage().pixelColor(0, 0));
}

void SaveScreenshot(QWidget& widget, const Text& path) {
  if (!widget.grab().save(QString::fromStdU16String(ToPath(path).u16string()), "PNG"))
    Raise(kPathOrFileAccess);
}

}  // namespace cardwright::robot
