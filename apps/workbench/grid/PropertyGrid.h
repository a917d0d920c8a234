#pragma once

#include <QLabel>
#include <QWidget>

#include "workbench/grid/Choices.h"
#include "workbench/grid/GridView.h"
#include "workbench/grid/PropertyModel.h"

namespace cardwright::workbench {

/// Names and values of the selected form element, and below them what the row at hand means or why a value
/// was refused.
class PropertyGrid final : public QWidget {
  Q_OBJECT
 public:
  PropertyGrid(const Choices& choices, QWidget* parent);

  PropertyModel& Model() noexcept { return *m_Model; }
  QTableView& View() noexcept { return *m_View; }
  /// What stands below the rows now.
  QString Notice() const { return m_Notice->text(); }
  /// Shows a control; the row at hand stays where the control has one of that name.
  void Show(const Ref<IControl>& control);
  /// Puts the keyboard on the value of that row.
  void EditRow(const QString& name);
  /// Takes the value of an editor that is open, as leaving it does.
  void FinishEditing();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void FitToFont();
  void ShowTitle();
  void ShowDescription();
  void ShowRefusal(const QString& reason);

  PropertyModel* m_Model;
  GridView* m_View;
  QLabel* m_Title;
  QLabel* m_Notice;
};

}  // namespace cardwright::workbench
