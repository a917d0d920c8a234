// SPDX-License-Identifier: MIT
#include "workbench/grid/Pictures.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>

#include "cardwright/qt/values/Colors.h"

namespace cardwright::workbench {
namespace {

constexpr int kSide = 16;

}  // namespace

QImage ImageOf(const Picture& picture) {
  QImage image(picture.Width(), picture.Height(), QImage::Format_RGB32);
  std::size_t at = 0;
  for (int y = picture.Height() - 1; y >= 0; --y)
    for (int x = 0; x < picture.Width(); ++x)
      image.setPixelColor(x, y, qt::ToQColor(picture.Pixels()[at++], QApplication::palette()));
  return image;
}

Ref<Picture> IconPicture(const QImage& image) {
  QImage icon(kSide, kSide, QImage::Format_RGB32);
  icon.fill(Qt::white);
  const QImage scaled = image.scaled(kSide, kSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  QPainter painter(&icon);
  painter.drawImage((kSide - scaled.width()) / 2, (kSide - scaled.height()) / 2, scaled);
  painter.end();
  std::vector<OleColor> pixels;
  for (int y = kSide - 1; y >= 0; --y)
    for (int x = 0; x < kSide; ++x) pixels.push_back(qt::FromQColor(icon.pixelColor(x, y)));
  return MakeRef<Picture>(kSide, kSide, std::move(pixels));
}

}  // namespace cardwright::workbench
