// SPDX-License-Identifier: MIT
#include "cardwright/qt/values/IconEngine.h"

#include <QApplication>
#include <QPainterPath>
#include <QPalette>

namespace cardwright::qt {
namespace {

constexpr qreal kField = 16;

QPen PenOf(const QColor& color) { return {color, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin}; }

}  // namespace

void IconInk::Lines() const {
  painter.setPen(PenOf(line));
  painter.setBrush(Qt::NoBrush);
}

void IconInk::Accent() const {
  painter.setPen(PenOf(accent));
  painter.setBrush(Qt::NoBrush);
}

void IconInk::Filled() const {
  painter.setPen(PenOf(line));
  painter.setBrush(background);
}

void IconInk::DrawTurn(bool back) const {
  painter.save();
  if (!back) {
    painter.translate(kField, 0);
    painter.scale(-1, 1);
  }
  QPainterPath path(QPointF(3, 6));
  path.lineTo(9.5, 6);
  path.cubicTo(14.5, 6, 14.5, 13, 9.5, 13);
  path.lineTo(6, 13);
  painter.drawPath(path);
  Accent();
  painter.drawPolyline(QPolygonF{{6, 2.8}, {2.8, 6}, {6, 9.2}});
  painter.restore();
}

void IconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) {
  const QPalette palette = QApplication::palette();
  const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
  const bool selected = mode == QIcon::Selected;
  const QColor line = palette.color(group, selected ? QPalette::HighlightedText : QPalette::WindowText);
  QColor accent = palette.color(group, QPalette::Highlight);
  if (selected || mode == QIcon::Disabled) accent = line;
  QColor background = palette.color(group, QPalette::Base);
  if (selected) background = Qt::transparent;

  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  const qreal side = qMin(rect.width(), rect.height());
  painter->translate(rect.center() + QPointF(0.5, 0.5) - QPointF(side, side) / 2);
  painter->scale(side / kField, side / kField);
  const IconInk ink{*painter, line, accent, background};
  ink.Lines();
  m_Draw(ink);
  painter->restore();
}

QPixmap IconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
  QPixmap picture(size);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  paint(&painter, QRect({}, size), mode, state);
  return picture;
}

}  // namespace cardwright::qt
