// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

#include "workbench/grid/Choices.h"
#include "workbench/grid/PropertyModel.h"

namespace cardwright::workbench {

/// The editors of the property grid, one for each type of property.
class ValueDelegate final : public QStyledItemDelegate {
  Q_OBJECT
 public:
  ValueDelegate(PropertyModel& model, const Choices& choices, QObject* parent)
      : QStyledItemDelegate(parent), m_Model(model), m_Choices(choices) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

 private:
  QWidget* MakeCombo(QWidget* parent, int row) const;
  QWidget* MakeDialogCell(QWidget* parent, int row) const;
  /// Ends the editing with the editor's value when the present event is over.
  void SubmitSoon(QWidget* editor);
  /// Ends the editing now; false if it has ended already.
  bool End(QWidget* editor, EndEditHint hint);
  /// Ends the editing and opens the row's dialog when the present event is over.
  void OpenDialogSoon(QWidget* editor, int row);
  void OpenDialog(QWidget& owner, int row) const;
  void ChooseColor(QWidget& owner, int row) const;
  void ChooseFontOf(QWidget& owner, int row) const;
  void ChooseItems(QWidget& owner, int row) const;
  void ChooseImage(QWidget& owner, int row) const;
  void ChooseFile(QWidget& owner, int row) const;

  PropertyModel& m_Model;
  const Choices& m_Choices;
  mutable QWidget* m_Open = nullptr;  // the open editor
  bool m_IsEnding = false;
  mutable bool m_IsStoring = false;  // a value is being stored, which may take the focus from its editor
};

}  // namespace cardwright::workbench
