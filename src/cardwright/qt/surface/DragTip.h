// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QPointer>

class QLabel;
class QString;
class QWidget;

namespace cardwright::qt {

/// The small window, "frmTooltip", that shows the position of a drag in one label, "lblPixel". The text is
/// also the window's title, for screen readers.
class DragTip {
 public:
  /// `owner` is the widget in whose window the drag runs.
  explicit DragTip(QWidget& owner);
  ~DragTip() { Hide(); }
  DragTip(const DragTip&) = delete;
  DragTip& operator=(const DragTip&) = delete;

  /// `place` is the left top corner on the screen.
  void Show(const QString& text, QPoint place);
  void Hide();

 private:
  const QPointer<QWidget> m_Owner;
  QPointer<QLabel> m_Label;  // its window is there as long as the tip is shown
};

}  // namespace cardwright::qt
