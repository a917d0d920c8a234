// SPDX-License-Identifier: MIT
#include "cardwright/qt/selectors/FontSample.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QStylePainter>

#include "cardwright/qt/selectors/ChoiceButton.h"
#include "cardwright/qt/values/Fonts.h"
#include "cardwright/qt/values/Keys.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

constexpr int kMargin = 2;
constexpr int kSideMargin = 4;

}  // namespace

FontSample::FontSample(QWidget* parent) : QWidget(parent) { setFocusPolicy(Qt::StrongFocus); }

void FontSample::SetValues(const FontValues& values) {
  const QString name = ToQString(values.name).left(200).simplified();
  m_Text = name + QStringLiteral(", ") + QString::number(values.size) + tr(" pt");
  m_Note = QFontDatabase::hasFamily(name) ? QString() : tr("not installed");
  const QString whole = m_Note.isEmpty() ? m_Text : m_Text + QStringLiteral(" (") + m_Note + u')';
  setToolTip(whole);
  setAccessibleName(tr("Font: ") + whole);
  update();
}

void FontSample::SetBorder(bool on) {
  m_HasBorder = on;
  update();
}

int FontSample::FittingHeight() const {
  const int frame = m_HasBorder ? style()->pixelMetric(QStyle::PM_DefaultFrameWidth) : 0;
  return fontMetrics().height() + 2 * (kMargin + frame);
}

void FontSample::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionFrame frame;
  frame.initFrom(this);
  frame.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
  frame.state |= QStyle::State_Sunken;
  painter.fillRect(rect(), palette().base());
  if (m_HasBorder) painter.drawPrimitive(QStyle::PE_PanelLineEdit, frame);
  const int border = m_HasBorder ? frame.lineWidth : 0;
  PaintText(painter, rect().adjusted(border + kSideMargin, border, -border - kSideMargin, -border));
  if (!hasFocus() || m_HasBorder) return;
  painter.setPen(palette().color(QPalette::Highlight));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

/// The note stays readable where the name has to be cut.
void FontSample::PaintText(QPainter& painter, QRect room) const {
  const bool isMissing = !m_Note.isEmpty();
  painter.setClipRect(room);
  QColor color = palette().color(QPalette::Text);
  if (isMissing) color.setAlphaF(0.6F);
  painter.setPen(color);
  if (isMissing) {
    painter.setFont(PlainFont());
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, m_Note);
    room.setRight(room.right() - painter.fontMetrics().horizontalAdvance(m_Note) - kSideMargin);
  }
  painter.setFont(font());
  const QString text = painter.fontMetrics().elidedText(m_Text, Qt::ElideRight, room.width());
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

void FontSample::keyPressEvent(QKeyEvent* event) {
  const bool isWanted = event->key() == Qt::Key_Space || IsEnter(*event) || IsChoiceKey(*event);
  if (!isWanted) return QWidget::keyPressEvent(event);
  if (!event->isAutoRepeat() && onChoose) onChoose();
}

void FontSample::mousePressEvent(QMouseEvent* event) { event->accept(); }

}  // namespace cardwright::qt
