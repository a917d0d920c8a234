#pragma once

#include <QStyledItemDelegate>

#include "workbench/Choices.h"
#include "workbench/PropertyModel.h"

namespace cardwright::workbench {

/// The editors of the property grid, one for each type of property.
class ValueDelegate final : public QStyledItemDelegate {
  Q_OBJECT
 public:
  ValueDelegate(PropertyModel& model, const Choices& choices, QObject* parent)
      : QStyledItemDelegate(parent), m_Model(model), m_Choices(choices) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  /// Opens the dialog of a row that is chosen in one: a font, items, a picture, a file.
  void OpenDialog(QWidget& owner, int row) const;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QWidget* MakeCombo(QWidget* parent, int row) const;
  QWidget* MakeDialogCell(QWidget* parent, int row) const;
  void AssignText(int row, const QString& text) const;
  void ChooseFontOf(QWidget& owner, int row) const;
  void ChooseItems(QWidget& owner, int row) const;
  void ChooseImage(QWidget& owner, int row) const;
  void ChooseFile(QWidget& owner, int row) const;

  PropertyModel& m_Model;
  const Choices& m_Choices;
  mutable bool m_IsStoring = false;  // a value is on its way, which may take the focus from its editor
};

}  // namespace cardwright::workbench
