// SPDX-License-Identifier: MIT
#include "cardwright/qt/selectors/ColorSwatch.h"

#include <QApplication>
#include <QKeyEvent>
#include <QStyleOption>
#include <QStylePainter>

#include "cardwright/qt/selectors/ChoiceButton.h"
#include "cardwright/qt/values/Colors.h"
#include "cardwright/qt/values/Keys.h"

namespace cardwright::qt {

ColorSwatch::ColorSwatch(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
  Describe();
}

void ColorSwatch::SetColor(OleColor color) {
  m_Color = color;
  Describe();
  update();
}

void ColorSwatch::SetBorder(bool on) {
  m_HasBorder = on;
  update();
}

void ColorSwatch::Describe() {
  const QString name = ToQColor(m_Color, QApplication::palette()).name().toUpper();
  setToolTip(name);
  setAccessibleName(tr("Color ") + name);
}

void ColorSwatch::paintEvent(QPaintEvent* /*event*/) {
  constexpr int kArrowWidth = 18, kNarrowest = 48;
  QStylePainter painter(this);
  const bool hasArrow = width() >= kNarrowest;
  const QRect whole = rect();
  const QRect shown = hasArrow ? whole.adjusted(0, 0, -kArrowWidth, 0) : whole;
  QColor color = ToQColor(m_Color, QApplication::palette());
  if (!isEnabled()) color.setAlphaF(0.4F);
  painter.fillRect(shown, color);
  if (hasArrow) {
    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = QRect(shown.right() + 1, 0, kArrowWidth, height());
    painter.fillRect(arrow.rect, palette().button());
    constexpr int kArrowMargin = 4;
    arrow.rect.adjust(kArrowMargin, 0, -kArrowMargin, 0);
    painter.drawPrimitive(QStyle::PE_IndicatorArrowDown, arrow);
  }
  painter.setBrush(Qt::NoBrush);
  if (m_HasBorder) {
    // Seen on light and dark grounds alike, whatever the colour inside.
    painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.drawRect(whole.adjusted(0, 0, -1, -1));
  }
  if (!hasFocus()) return;
  painter.setPen(palette().color(QPalette::Highlight));
  painter.drawRect(whole.adjusted(0, 0, -1, -1));
  painter.setPen(palette().color(QPalette::HighlightedText));
  painter.drawRect(whole.adjusted(1, 1, -2, -2));
}

void ColorSwatch::keyPressEvent(QKeyEvent* event) {
  if (!IsEnter(*event) && !IsChoiceKey(*event)) return QAbstractButton::keyPressEvent(event);
  if (!event->isAutoRepeat()) click();
}

void ColorSwatch::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) Describe();
  QAbstractButton::changeEvent(event);
}

}  // namespace cardwright::qt
