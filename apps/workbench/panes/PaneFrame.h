// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace cardwright::workbench {

/// A pane with a frame that shows whether the pane has the keyboard focus. Without the focus, selections are
/// grey, so that only one of several selections looks active.
class PaneFrame final : public QWidget {
  Q_OBJECT
 public:
  /// `marked` is the widget in it whose selection colour changes.
  PaneFrame(QWidget& pane, QWidget& marked, QWidget* parent);

  QWidget& Pane() const noexcept { return m_Pane; }
  bool HasKeyboard() const noexcept { return m_HasKeyboard; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Follow(const QWidget* focused);
  void Mark();

  QWidget& m_Pane;
  QWidget& m_Marked;
  bool m_HasKeyboard = false;
};

}  // namespace cardwright::workbench
