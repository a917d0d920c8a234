// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

#include "cardwright/platform/Color.h"

namespace cardwright::qt {

/// A button that shows a colour. Blank, Enter, F4 and Alt with the down arrow press it.
class ColorSwatch final : public QAbstractButton {
 public:
  explicit ColorSwatch(QWidget* parent);

  OleColor Color() const noexcept { return m_Color; }
  void SetColor(OleColor color);
  bool HasBorder() const noexcept { return m_HasBorder; }
  void SetBorder(bool on);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Describe();

  OleColor m_Color = 0;
  bool m_HasBorder = true;
};

}  // namespace cardwright::qt
