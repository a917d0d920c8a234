// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QWidget>

#include "workbench/grid/Choices.h"
#include "workbench/grid/GridView.h"
#include "workbench/grid/PropertyModel.h"

namespace cardwright::workbench {

/// The properties of the selected form element. A text below explains the current row, or says why its value
/// is invalid.
class PropertyGrid final : public QWidget {
  Q_OBJECT
 public:
  PropertyGrid(const Choices& choices, QWidget* parent);

  PropertyModel& Model() noexcept { return *m_Model; }
  QTableView& View() noexcept { return *m_View; }
  /// The text below the rows.
  QString Notice() const { return m_Notice->text(); }
  /// Shows a control; the current row stays if the control has one of that name.
  void Show(const Ref<IControl>& control);
  /// Moves the keyboard focus to the value of that row.
  void EditRow(const QString& name);
  /// Commits the value of an open editor, as leaving it does.
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
