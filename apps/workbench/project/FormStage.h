// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>
#include <QWidget>
#include <array>

#include "cardwright/qt/FormDesigner.h"

namespace cardwright::workbench {

/// The scroll area in which a form is drawn: the form is shown as a window with a title bar and with edges
/// that can be dragged to resize it. Another project gets another designer.
class FormStage final : public QScrollArea {
  Q_OBJECT
 public:
  explicit FormStage(QWidget* parent);
  ~FormStage() override;

  /// Replaces the designer by a new one.
  qt::FormDesigner& ReplaceDesigner();
  qt::FormDesigner& Designer() const noexcept { return *m_Designer; }
  QString Caption() const { return m_Window->windowTitle(); }
  void SetCaption(const QString& caption) { m_Window->setWindowTitle(caption); }
  QWidget& Title() const noexcept { return *m_Title; }
  /// Scrolls to a part of the surface.
  void Reveal(const QRect& part);

  bool eventFilter(QObject* object, QEvent* event) override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  class Edge;
  void Arrange();

  QWidget* m_Desk;
  QWidget* m_Title;
  QWidget* m_Window;  // which the designer takes for the host's window
  qt::FormDesigner* m_Designer = nullptr;
  std::array<Edge*, 3> m_Edges;
};

}  // namespace cardwright::workbench
