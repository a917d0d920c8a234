// SPDX-License-Identifier: MIT
#include "workbench/grid/GridView.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace cardwright::workbench {

bool OpensChoice(const QKeyEvent& key) {
  return key.key() == Qt::Key_F4 || (key.key() == Qt::Key_Down && key.modifiers() == Qt::AltModifier);
}

GridView::GridView(PropertyModel& model, QWidget* parent) : QTableView(parent), m_Model(model) {
  setModel(&model);
  setAccessibleName(tr("Properties"));
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  setEditTriggers(DoubleClicked | SelectedClicked | EditKeyPressed | AnyKeyPressed);
  setAlternatingRowColors(true);
  setShowGrid(false);
  setWordWrap(false);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setSectionResizeMode(PropertyModel::kValue, QHeaderView::Stretch);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setMinimumSectionSize(40);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(this, &QTableView::clicked, this, [this](const QModelIndex& at) {
    if (at.column() == PropertyModel::kValue && (at.flags() & Qt::ItemIsEditable)) edit(at);
  });
  connect(&model, &PropertyModel::modelReset, this, &GridView::ShareWidth);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
    if (column == PropertyModel::kName && !m_IsSharing)
      m_NameShare = static_cast<double>(width) / qMax(1, viewport()->width());
  });
}

void GridView::ShareWidth() {
  const QScopedValueRollback sharing(m_IsSharing, true);
  const int all = viewport()->width();
  QHeaderView& header = *horizontalHeader();
  const int wanted =
      m_NameShare > 0 ? qRound(all * m_NameShare) : qMin(sizeHintForColumn(PropertyModel::kName), all / 2);
  // The header would widen a column without width, as if the user had done so.
  header.resizeSection(PropertyModel::kName, qMax(header.minimumSectionSize(), wanted));
}

void GridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  ShareWidth();
}

void GridView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) ShareWidth();
}

// F4 is a shortcut of the window too.
bool GridView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && OpensChoice(*static_cast<QKeyEvent*>(event))) {
    event->accept();
    return true;
  }
  return QTableView::event(event);
}

void GridView::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool isForEditor = OpensChoice(*event) || key == Qt::Key_Delete || key == Qt::Key_Backspace;
  if (state() == EditingState && isForEditor) return;  // which ignored it
  if (state() == EditingState || !currentIndex().isValid()) return QTableView::keyPressEvent(event);
  if (isForEditor) {
    EditWith(*event);
  } else if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    edit(currentIndex(), EditKeyPressed, event);
  } else if (key == Qt::Key_Escape && m_Model.IsRefused(currentIndex().row())) {
    m_Model.Discard(currentIndex().row());
  } else {
    return QTableView::keyPressEvent(event);
  }
  event->accept();
}

void GridView::EditWith(QKeyEvent& key) {
  if (!edit(currentIndex(), EditKeyPressed, &key)) return;
  if (QWidget* editor = indexWidget(currentIndex())) QCoreApplication::sendEvent(editor, &key);
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (current.isValid() && current.column() == PropertyModel::kName)
    setCurrentIndex(current.siblingAtColumn(PropertyModel::kValue));
}

QModelIndex GridView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const int row = currentIndex().row();
  if (action == MoveNext) return m_Model.index(row + 1, PropertyModel::kValue);
  if (action == MovePrevious) return m_Model.index(row - 1, PropertyModel::kValue);
  if (action == MoveHome) return m_Model.index(0, PropertyModel::kValue);
  if (action == MoveEnd) return m_Model.index(m_Model.rowCount() - 1, PropertyModel::kValue);
  return QTableView::moveCursor(action, modifiers);
}

void GridView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  const int row = indexAt(editor->geometry().center()).row();
  const bool isEntered =
      hint != QAbstractItemDelegate::NoHint && hint != QAbstractItemDelegate::RevertModelCache;
  if (row >= 0 && row == currentIndex().row() && m_Model.IsRefused(row)) {
    if (isEntered) {
      editor->setToolTip(m_Model.RefusalOf(row));
      editor->setAccessibleDescription(m_Model.RefusalOf(row));
      return;
    }
    if (hint == QAbstractItemDelegate::RevertModelCache) m_Model.Discard(row);
  }
  QTableView::closeEditor(editor, hint);
}

}  // namespace cardwright::workbench
