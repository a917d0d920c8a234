// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QTableWidget>

#include "cardwright/model/CItems.h"

class QVBoxLayout;

namespace cardwright::workbench {

/// A dialog for the entries of a list control, each with a text and a value.
class ItemsDialog final : public QDialog {
  Q_OBJECT
 public:
  ItemsDialog(QWidget& owner, const CItems& items);

  /// Replaces the control's entries by those of the dialog.
  void Store(CItems& items) const;

  void accept() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QPushButton* AddButton(const QString& text, void (ItemsDialog::*command)());
  void AddRow(int row, const QString& text, const QString& value);
  void Add();
  void Remove();
  void MoveUp() { Move(-1); }
  void MoveDown() { Move(1); }
  void Move(int by);
  /// One entry per line, text and value separated by a tab.
  void PasteLines();
  void Update();

  QTableWidget* m_Table;
  QVBoxLayout* m_Buttons;
  QPushButton *m_Remove, *m_Up, *m_Down;
};

/// Lets the user edit the entries; false if cancelled.
bool EditItems(QWidget& owner, CItems& items);

}  // namespace cardwright::workbench
