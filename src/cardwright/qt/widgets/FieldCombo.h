#pragma once

#include <QComboBox>

namespace cardwright::qt {

/// A drop-down list that is drawn as the fields beside it, on the ground that it was given: styles draw one
/// without an edit field as a button, whose shades change any colour.
class FieldCombo : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace cardwright::qt
