// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemDelegate>
#include <QAbstractItemView>

namespace cardwright::workbench {

/// Commits the value of an open cell editor, as leaving the editor does.
inline void FinishCell(const QAbstractItemView& view) {
  QWidget* const editor = view.indexWidget(view.currentIndex());
  QAbstractItemDelegate* const delegate = view.itemDelegate();
  if (!editor) return;
  Q_EMIT delegate->commitData(editor);
  Q_EMIT delegate->closeEditor(editor, QAbstractItemDelegate::NoHint);
}

}  // namespace cardwright::workbench
