// SPDX-License-Identifier: MIT
#include "cardwright/qt/surface/DragTip.h"

#include <QLabel>
#include <QToolTip>

namespace cardwright::qt {

namespace {

QLabel* MakeTip(QWidget* owner) {
  auto* const window =
      new QWidget(owner, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput);
  window->setObjectName(QStringLiteral("frmTooltip"));
  window->setAttribute(Qt::WA_ShowWithoutActivating);
  window->setPalette(QToolTip::palette());
  window->setFont(QToolTip::font());
  auto* const label = new QLabel(window);
  label->setObjectName(QStringLiteral("lblPixel"));
  label->setTextFormat(Qt::PlainText);
  label->setFrameShape(QFrame::Box);
  label->setBackgroundRole(QPalette::ToolTipBase);
  label->setForegroundRole(QPalette::ToolTipText);
  label->setAutoFillBackground(true);
  return label;
}

}  // namespace

DragTip::DragTip(QWidget& owner) : m_Owner(&owner) {}

void DragTip::Show(const QString& text, QPoint place) {
  if (!m_Owner) return;
  if (!m_Label) m_Label = MakeTip(m_Owner);
  QWidget* const window = m_Label->window();
  window->setWindowTitle(text);
  m_Label->setText(text);
  m_Label->adjustSize();
  window->setGeometry(QRect(place, m_Label->size()));
  window->show();
}

void DragTip::Hide() {
  if (m_Label) delete m_Label->window();
}

}  // namespace cardwright::qt
