#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include "workbench/FeatureModel.h"

namespace cardwright::workbench {

/// The data source: its themes, and the features of one in a table.
class FeaturePane final : public QWidget {
  Q_OBJECT
 public:
  explicit FeaturePane(QWidget* parent);

  /// Shows another source; "" for none.
  void Open(const QString& source);
  /// Shows a theme if the source has it.
  void ShowTheme(const QString& theme);
  FeatureModel& Model() noexcept { return *m_Model; }
  QTableView& View() noexcept { return *m_View; }
  /// Theme and identifier of the feature chosen; "" where none is.
  QString Theme() const { return m_Model->Theme(); }
  QString Feature() const;
  void ChooseFeature(const QString& id);
  /// Reads the features anew, as after one was changed.
  void Reload();

 Q_SIGNALS:
  void OpenWanted();
  void FillWanted();

 private:
  void ShowChoice();

  FeatureModel* m_Model;
  QComboBox* m_Themes;
  QLabel* m_Count;
  QPushButton *m_Open, *m_Fill;
  QTableView* m_View;
};

}  // namespace cardwright::workbench
