#pragma once

#include <QScrollArea>
#include <QWidget>
#include <array>

#include "cardwright/qt/FormDesigner.h"

namespace cardwright::workbench {

/// The room in which a form is drawn: a scrolled desk on which the form lies as a window, with a title bar
/// and edges that are pulled to size it. The designer in it is replaced when another project is shown.
class FormStage final : public QScrollArea {
  Q_OBJECT
 public:
  explicit FormStage(QWidget* parent);
  ~FormStage() override;

  /// Puts a new designer in the place of the one that is there.
  qt::FormDesigner& Renew();
  qt::FormDesigner& Designer() const noexcept { return *m_Designer; }
  QString Caption() const { return m_Window->windowTitle(); }
  void SetCaption(const QString& caption) { m_Window->setWindowTitle(caption); }
  QWidget& Title() const noexcept { return *m_Title; }
  /// Brings a part of the surface into view.
  void Reveal(const QRect& part);

  bool eventFilter(QObject* object, QEvent* event) override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  class Edge;
  void Arrange();

  QWidget* m_Desk;
  QWidget* m_Title;
  QWidget* m_Window;  // the host's window, to the designer
  qt::FormDesigner* m_Designer = nullptr;
  std::array<Edge*, 3> m_Edges;
};

}  // namespace cardwright::workbench
