#pragma once

#include <QAbstractItemDelegate>
#include <QAbstractItemView>

namespace cardwright::workbench {

/// Takes the value of an editor that is open in the cell at hand, as leaving it does, whoever has the focus.
inline void FinishCell(const QAbstractItemView& view) {
  QWidget* const editor = view.indexWidget(view.currentIndex());
  QAbstractItemDelegate* const delegate = view.itemDelegate();
  if (!editor) return;
  Q_EMIT delegate->commitData(editor);
  Q_EMIT delegate->closeEditor(editor, QAbstractItemDelegate::NoHint);
}

}  // namespace cardwright::workbench
