// SPDX-License-Identifier: MIT
#include "workbench/grid/ValueCombo.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace cardwright::workbench {

ValueCombo::ValueCombo(QWidget* parent, bool canType) : QComboBox(parent) {
  setEditable(canType);
  setInsertPolicy(NoInsert);
  setMaxVisibleItems(16);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  connect(this, &QComboBox::activated, this, [this] {
    if (!m_IsStepping) Q_EMIT Picked();
  });
}

void ValueCombo::SetText(const QString& text) {
  setCurrentIndex(findText(text));
  if (isEditable()) setEditText(text);
}

std::optional<QString> ValueCombo::Chosen() const {
  if (IsOther() || (!isEditable() && currentIndex() < 0)) return std::nullopt;
  return currentText();
}

void ValueCombo::AddOther(const QString& text) { addItem(text, true); }

bool ValueCombo::IsOther() const {
  return currentData().toBool() && currentText() == itemText(currentIndex());
}

// The column of values may be too narrow for the list.
void ValueCombo::showPopup() {
  view()->setMinimumWidth(view()->sizeHintForColumn(0) + view()->verticalScrollBar()->sizeHint().width());
  QComboBox::showPopup();
}

void ValueCombo::keyPressEvent(QKeyEvent* event) {
  const QScopedValueRollback stepping(m_IsStepping, true);
  QComboBox::keyPressEvent(event);
}

void ValueCombo::wheelEvent(QWheelEvent* event) {
  const QScopedValueRollback stepping(m_IsStepping, true);
  QComboBox::wheelEvent(event);
}

// The text is selected, so that typing replaces it, and a long one shows its beginning.
void ValueCombo::focusInEvent(QFocusEvent* event) {
  QComboBox::focusInEvent(event);
  const bool isBack =
      event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
  if (!isEditable() || isBack) return;
  const int length = static_cast<int>(currentText().length());
  lineEdit()->setSelection(length, -length);
}

// Leaving the editor commits typed text if it is one of the choices.
void ValueCombo::focusOutEvent(QFocusEvent* event) {
  const QScopedValueRollback stepping(m_IsStepping, true);
  QComboBox::focusOutEvent(event);
}

}  // namespace cardwright::workbench
