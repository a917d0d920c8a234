// SPDX-License-Identifier: MIT
#pragma once

#include <QTableView>

#include "workbench/grid/PropertyModel.h"

namespace cardwright::workbench {

/// The table of the property grid and its keys: Enter and F2 edit, F4 opens the list or dialog of a row, Tab
/// goes to the next value. An editor with an invalid text stays open until the text is corrected or
/// cancelled. The names take the width that they need, up to half of the table, until the user changes it.
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
  /// Opens the editor of the current row and sends it the key.
  void EditWith(QKeyEvent& key);
  void ShareWidth();

  PropertyModel& m_Model;
  bool m_IsSharing = false;
  double m_NameShare = 0;  // of the width, as set by the user; 0 if not set
};

/// F4 or Alt+Down, which open a list or dialog.
bool OpensChoice(const QKeyEvent& key);

}  // namespace cardwright::workbench
