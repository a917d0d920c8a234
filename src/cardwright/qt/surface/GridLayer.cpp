// SPDX-License-Identifier: MIT
#include "cardwright/qt/surface/GridLayer.h"

#include <QPainter>
#include <QPixmap>
#include <algorithm>

namespace cardwright::qt {

namespace {

/// Columns and rows whose points lie inside an area; points have no negative coordinates.
QRect CellsIn(const QRect& area, int step) {
  const auto first = [step](int pixel) { return std::max(0, (pixel + step - 1) / step); };
  const QPoint from(first(area.left()), first(area.top()));
  const QPoint to(area.right() < 0 ? -1 : area.right() / step, area.bottom() < 0 ? -1 : area.bottom() / step);
  return {from, to};
}

/// Points are set in colour 0, black. That is for light surfaces: on a dark one they would be invisible.
QColor PointColor(const QColor& background) {
  constexpr int kDark = 80;
  return qGray(background.rgb()) < kDark ? QColor(0xb0, 0xb0, 0xb0) : QColor(Qt::black);
}

/// One row of points, which all rows show: thousands of single points would take their time.
QPixmap RowOf(int columns, int step, qreal ratio, const QColor& ink) {
  QPixmap row(QSize((columns - 1) * step + 1, 1) * ratio);
  row.setDevicePixelRatio(ratio);
  row.fill(Qt::transparent);
  QPainter painter(&row);
  for (int column = 0; column < columns; ++column) painter.fillRect(column * step, 0, 1, 1, ink);
  return row;
}

void PaintPoints(QPainter& painter, const QRect& cells, int step, const QColor& ink) {
  const QPixmap row = RowOf(cells.width(), step, painter.device()->devicePixelRatioF(), ink);
  for (int y = cells.top(); y <= cells.bottom(); ++y) painter.drawPixmap(cells.left() * step, y * step, row);
}

}  // namespace

void GridLayer::Add(int step, const QRect& cells) { m_Cells[step] += cells; }

void GridLayer::Paint(QPainter& painter, const QRect& area, const QColor& background) const {
  const QColor ink = PointColor(background);
  for (const auto& [step, cells] : m_Cells)
    for (const QRect& block : cells.intersected(CellsIn(area, step))) PaintPoints(painter, block, step, ink);
}

}  // namespace cardwright::qt
