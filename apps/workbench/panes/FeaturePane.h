// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

#include "workbench/panes/FeatureModel.h"

namespace cardwright::workbench {

/// The data source: its themes, and a table with the features of one, for searching, sorting and copying.
class FeaturePane final : public QWidget {
  Q_OBJECT
 public:
  explicit FeaturePane(QWidget* parent);

  /// Shows another data source; "" for none.
  void Open(const QString& source);
  /// Shows a theme if the data source has it.
  void ShowTheme(const QString& theme);
  FeatureModel& Model() noexcept { return *m_Model; }
  QTableView& View() noexcept { return *m_View; }
  QLineEdit& SearchField() noexcept { return *m_Search; }
  /// Theme and identifier of the selected feature; "" if none is selected.
  QString Theme() const { return m_Model->Theme(); }
  QString Feature() const;
  void ChooseFeature(const QString& id);
  /// Reads the features again, after one was changed.
  void Reload();

 Q_SIGNALS:
  void OpenWanted();
  void FillWanted();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void MakeTable();
  void MakeActions();
  QLayout* MakeHead();
  void Search();
  void Sort(int column, Qt::SortOrder order);
  void Copy();
  void FillSortMenu();
  QMap<QString, int> ColumnWidths() const;
  void FitColumns(const QMap<QString, int>& known = {});
  void ShowSigns();
  void ShowChoice();

  FeatureModel* m_Model;
  QComboBox* m_Themes;
  QLabel* m_Count;
  QLineEdit* m_Search;
  QPushButton *m_Open, *m_Fill;
  QTableView* m_View;
  QMenu* m_SortBy;
  QTimer m_SearchSoon;
};

}  // namespace cardwright::workbench
