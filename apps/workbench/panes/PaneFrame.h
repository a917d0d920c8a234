#pragma once

#include <QWidget>

namespace cardwright::workbench {

/// A pane with a frame that shows whether the keyboard is in it. Where it is not, selections are grey as
/// well, so that of several selected rows on the screen one only looks as if keys went there.
class PaneFrame final : public QWidget {
  Q_OBJECT
 public:
  /// `marked` is the pane or the part of it whose colour of selections follows.
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
