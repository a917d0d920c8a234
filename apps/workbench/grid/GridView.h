#pragma once

#include <QTableView>

#include "workbench/grid/PropertyModel.h"

namespace cardwright::workbench {

/// The rows of the property grid under the keyboard: Enter and F2 edit, F4 opens what the row offers, Tab
/// goes from value to value. An editor whose text was refused stays open until the text is mended or given
/// up. The names have the width they need, up to half of it, until the user gives them another share.
class GridView final : public QTableView {
  Q_OBJECT
 public:
  GridView(PropertyModel& model, QWidget* parent);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

 protected Q_SLOTS:
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

 private:
  /// Opens the editor of the row at hand and hands it the key.
  void EditWith(QKeyEvent& key);
  void ShareWidth();

  PropertyModel& m_Model;
  bool m_IsSharing = false;
  double m_NameShare = 0;  // of the width, as the user has set it; 0 before
};

/// F4 or Alt+Down, which open what a value is chosen from.
bool OpensChoice(const QKeyEvent& key);

}  // namespace cardwright::workbench
