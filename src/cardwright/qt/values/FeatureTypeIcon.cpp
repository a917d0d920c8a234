// SPDX-License-Identifier: MIT
#include "cardwright/qt/values/FeatureTypeIcon.h"

#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QPolygonF>

namespace cardwright::qt {

namespace {

void PaintSign(QPainter& painter, int featureType, const QColor& color) {
  constexpr qreal kDrawnSize = 16;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(kFeatureTypeIconSize / kDrawnSize, kFeatureTypeIconSize / kDrawnSize);
  painter.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  QColor inside = color;
  inside.setAlphaF(0.25F);
  switch (featureType) {
    case 0:
      painter.setBrush(color);
      painter.drawEllipse(QPointF(8, 8), 2.5, 2.5);
      break;
    case 1: painter.drawPolyline(QPolygonF{{2.5, 12.5}, {6, 5.5}, {10, 10}, {13.5, 3.5}}); break;
    case 2:
      painter.setBrush(inside);
      painter.drawPolygon(QPolygonF{{3, 5.5}, {9, 3}, {13.5, 8}, {10.5, 13}, {4, 12}});
      break;
    default: break;
  }
}

}  // namespace

QIcon FeatureTypeIcon(int featureType, const QColor& color, qreal pixelRatio) {
  const QString key =
      QStringLiteral("cardwright-sign-%1-%2-%3").arg(featureType).arg(color.rgba()).arg(pixelRatio);
  QPixmap picture;
  if (!QPixmapCache::find(key, &picture)) {
    picture = QPixmap(QSize(kFeatureTypeIconSize, kFeatureTypeIconSize) * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    PaintSign(painter, featureType, color);
    painter.end();
    QPixmapCache::insert(key, picture);
  }
  QIcon sign;
  // The same in every state: the style would paint it grey or in the colour of a selection by itself.
  for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Active, QIcon::Selected})
    sign.addPixmap(picture, mode);
  return sign;
}

}  // namespace cardwright::qt
