// SPDX-License-Identifier: MIT
#pragma once

#include <QRegion>
#include <map>

class QColor;
class QPainter;

namespace cardwright::qt {

/// The points of a grid that have been set on a canvas. They stay whatever size it takes.
class GridLayer {
 public:
  /// Sets the points of the columns and rows in `cells`, `step` pixels apart.
  void Add(int step, const QRect& cells);
  void Clear() { m_Cells.clear(); }
  /// Paints the points inside `area`, on a canvas of the colour `background`.
  void Paint(QPainter& painter, const QRect& area, const QColor& background) const;

 private:
  std::map<int, QRegion> m_Cells;  // by step; a cell is a column and a row
};

}  // namespace cardwright::qt
