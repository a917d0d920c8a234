// SPDX-License-Identifier: MIT
#include "workbench/panes/PaneFrame.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace cardwright::workbench {
namespace {

constexpr int kWidth = 2;

/// A grey as light as the colour, so that text on it stays readable.
QColor WithoutHue(const QColor& color) {
  const int grey = qGray(color.rgb());
  return {grey, grey, grey};
}

}  // namespace

PaneFrame::PaneFrame(QWidget& pane, QWidget& marked, QWidget* parent)
    : QWidget(parent), m_Pane(pane), m_Marked(marked) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kWidth, kWidth, kWidth, kWidth);
  layout->addWidget(&pane);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { Follow(now); });
  Mark();
}

void PaneFrame::Follow(const QWidget* focused) {
  const bool has = focused && isAncestorOf(focused);
  if (has == m_HasKeyboard) return;
  m_HasKeyboard = has;
  Mark();
}

void PaneFrame::Mark() {
  QPalette marks;
  if (!m_HasKeyboard)
    for (const auto group : {QPalette::Active, QPalette::Inactive})
      marks.setColor(group, QPalette::Highlight, WithoutHue(palette().color(group, QPalette::Highlight)));
  m_Marked.setPalette(marks);
  update();
}

void PaneFrame::paintEvent(QPaintEvent*) {
  if (!m_HasKeyboard) return;
  QPainter painter(this);
  const QRect inner = rect().adjusted(kWidth, kWidth, -kWidth, -kWidth);
  painter.setClipRegion(QRegion(rect()) - inner);
  painter.fillRect(rect(), palette().color(QPalette::Active, QPalette::Highlight));
}

// The colours derive from the palette, which others set.
void PaneFrame::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) Mark();
}

}  // namespace cardwright::workbench
