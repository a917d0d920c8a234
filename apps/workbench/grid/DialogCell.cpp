// SPDX-License-Identifier: MIT
#include "workbench/grid/DialogCell.h"

#include <QKeyEvent>

namespace cardwright::workbench {

DialogCell::DialogCell(QWidget* parent, const QString& name, bool canType)
    : QLineEdit(parent), m_Name(name), m_Choose(AddButton(QStringLiteral("…"), tr("Choose %1…"), tr("F4"))) {
  setReadOnly(!canType);
  setFrame(false);
  connect(m_Choose, &QToolButton::clicked, this, &DialogCell::DialogWanted);
}

// The focus stays in the cell, which has a key for each button.
QToolButton* DialogCell::AddButton(const QString& text, const QString& name, const QString& keys) {
  auto* button = new QToolButton(this);
  button->setText(text);
  button->setAccessibleName(name.arg(m_Name));
  button->setToolTip(tr("%1 (%2)").arg(name.arg(m_Name), keys));
  button->setFocusPolicy(Qt::NoFocus);
  button->setCursor(Qt::ArrowCursor);
  return button;
}

void DialogCell::OfferClearing(bool isFilled) {
  m_Clear = AddButton(QStringLiteral("×"), tr("Clear %1"), tr("Delete"));
  m_Clear->setEnabled(isFilled);
  connect(m_Clear, &QToolButton::clicked, this, &DialogCell::ClearWanted);
}

// The whole text is selected, and a long one shows its beginning.
void DialogCell::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  const int length = static_cast<int>(text().length());
  setSelection(length, -length);
}

void DialogCell::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool isDelete = key == Qt::Key_Delete || key == Qt::Key_Backspace;
  if (key == Qt::Key_F4 || (key == Qt::Key_Down && event->modifiers() == Qt::AltModifier) ||
      (key == Qt::Key_Space && !CanType())) {
    Q_EMIT DialogWanted();
  } else if (isDelete && !CanType() && m_Clear && m_Clear->isEnabled()) {
    Q_EMIT ClearWanted();
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

void DialogCell::mouseDoubleClickEvent(QMouseEvent* event) {
  if (CanType()) return QLineEdit::mouseDoubleClickEvent(event);
  Q_EMIT DialogWanted();
}

void DialogCell::resizeEvent(QResizeEvent* event) {
  QLineEdit::resizeEvent(event);
  int right = width();
  for (QToolButton* button : {m_Choose, m_Clear}) {
    if (!button) continue;
    const int side = qMax(height(), button->sizeHint().width());
    right -= side;
    button->setGeometry(right, 0, side, height());
  }
  setTextMargins(0, 0, width() - right, 0);
}

}  // namespace cardwright::workbench
