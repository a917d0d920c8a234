// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

namespace cardwright::qt {

/// A drop-down list drawn like a text field, in its own background colour. Styles draw one without an edit
/// field as a button, whose shading would change the colour.
class FieldCombo : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace cardwright::qt
