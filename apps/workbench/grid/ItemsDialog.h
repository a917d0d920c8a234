#pragma once

#include <QDialog>
#include <QTableWidget>

#include "cardwright/model/CItems.h"

class QVBoxLayout;

namespace cardwright::workbench {

/// The entries of a list control: what each shows and the value that it stands for.
class ItemsDialog final : public QDialog {
  Q_OBJECT
 public:
  ItemsDialog(QWidget& owner, const CItems& items);

  /// Replaces the entries by those of the dialog.
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
  /// One entry a line; a tab parts the text from the value.
  void PasteLines();
  void Update();

  QTableWidget* m_Table;
  QVBoxLayout* m_Buttons;
  QPushButton *m_Remove, *m_Up, *m_Down;
};

/// Has a person change the entries; false where it was cancelled.
bool EditItems(QWidget& owner, CItems& items);

}  // namespace cardwright::workbench
