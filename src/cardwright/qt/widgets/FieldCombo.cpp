// SPDX-License-Identifier: MIT
#include "cardwright/qt/widgets/FieldCombo.h"

#include <QStylePainter>

namespace cardwright::qt {

void FieldCombo::paintEvent(QPaintEvent* event) {
  if (isEditable()) return QComboBox::paintEvent(event);
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.editable = true;
  painter.fillRect(style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this),
                   option.palette.base());
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  option.editable = false;
  const bool isPlaceholder = currentIndex() < 0 && !placeholderText().isEmpty();
  if (isPlaceholder) option.currentText = placeholderText();
  option.palette.setBrush(QPalette::ButtonText,
                          isPlaceholder ? option.palette.placeholderText() : option.palette.text());
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

}  // namespace cardwright::qt
