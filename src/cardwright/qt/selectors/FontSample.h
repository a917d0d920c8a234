// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>

#include "cardwright/platform/Font.h"

namespace cardwright::qt {

/// Shows a font by its name and size, written in it; one that is not installed in grey, with a note.
class FontSample final : public QWidget {
 public:
  explicit FontSample(QWidget* parent);

  void SetValues(const FontValues& values);
  bool HasBorder() const noexcept { return m_HasBorder; }
  void SetBorder(bool on);
  /// Height in pixels at which one line of the font fits in.
  int FittingHeight() const;

  /// A key asked for the choice of a font.
  std::function<void()> onChoose;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* /*event*/) override { update(); }
  void focusOutEvent(QFocusEvent* /*event*/) override { update(); }

 private:
  void PaintText(QPainter& painter, QRect room) const;

  QString m_Text;
  QString m_Note;  // "" for a font that is installed
  bool m_HasBorder = true;
};

}  // namespace cardwright::qt
