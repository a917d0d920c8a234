// SPDX-License-Identifier: MIT
#include "workbench/grid/ItemsDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "cardwright/qt/dialogs/RunDialog.h"
#include "cardwright/qt/values/QtText.h"
#include "workbench/grid/CellEditing.h"

namespace cardwright::workbench {
namespace {

enum Column { kText, kValue };

/// The editors of the cells. Each has an accessible name, and takes one line, because form projects store no
/// more.
class CellDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                        const QModelIndex& index) const override {
    auto* edit = new QLineEdit(parent);
    edit->setFrame(false);
    const QString column = index.model()->headerData(index.column(), Qt::Horizontal).toString();
    edit->setAccessibleName(ItemsDialog::tr("%1, item %2").arg(column).arg(index.row() + 1));
    return edit;
  }
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override {
    static const QRegularExpression breaks(QStringLiteral("[\\r\\n]+"));
    QString text = static_cast<QLineEdit*>(editor)->text();
    model->setData(index, text.replace(breaks, QStringLiteral(" ")));
  }
};

}  // namespace

ItemsDialog::ItemsDialog(QWidget& owner, const CItems& items)
    : QDialog(owner.window()), m_Table(new QTableWidget(0, 2, this)), m_Buttons(new QVBoxLayout) {
  setWindowTitle(tr("Items"));
  setObjectName(QStringLiteral("frmItems"));
  m_Table->setHorizontalHeaderLabels({tr("Text in the list"), tr("Value of the attribute")});
  m_Table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  m_Table->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_Table->setTabKeyNavigation(false);
  m_Table->setAccessibleName(tr("Items"));
  m_Table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                           QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
  m_Table->setItemDelegate(new CellDelegate(m_Table));
  m_Table->installEventFilter(this);
  for (std::int32_t i = 1; i <= items.Count(); ++i) {
    const Ref<CItem> item = items.Item(Variant(i));
    if (item) AddRow(m_Table->rowCount(), qt::ToQString(item->m_Text), qt::ToQString(item->m_Value));
  }

  AddButton(tr("&Add"), &ItemsDialog::Add);
  m_Remove = AddButton(tr("&Remove"), &ItemsDialog::Remove);
  m_Up = AddButton(tr("Move &up"), &ItemsDialog::MoveUp);
  m_Down = AddButton(tr("Move &down"), &ItemsDialog::MoveDown);
  AddButton(tr("&Paste lines"), &ItemsDialog::PasteLines)
      ->setToolTip(tr("Adds one item for each line on the clipboard. A tab parts the text from the value; "
                      "without one the value is the text."));
  m_Buttons->addStretch();

  auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  box->button(QDialogButtonBox::Ok)->setText(tr("&OK"));  // not every desktop assigns a mnemonic
  connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* upper = new QHBoxLayout;
  upper->addWidget(m_Table, 1);
  upper->addLayout(m_Buttons);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(upper, 1);
  layout->addWidget(box);
  connect(m_Table, &QTableWidget::currentCellChanged, this, &ItemsDialog::Update);
  if (m_Table->rowCount() > 0) m_Table->setCurrentCell(0, kText);
  m_Table->setFocus();
  Update();
  resize(520, 360);
}

// Commits an open cell first.
QPushButton* ItemsDialog::AddButton(const QString& text, void (ItemsDialog::*command)()) {
  auto* button = new QPushButton(text, this);
  button->setAutoDefault(false);
  button->setAccessibleName(QString(text).remove(u'&'));
  connect(button, &QPushButton::clicked, this, [this, command] {
    FinishCell(*m_Table);
    (this->*command)();
  });
  m_Buttons->addWidget(button);
  return button;
}

void ItemsDialog::accept() {
  FinishCell(*m_Table);
  QDialog::accept();
}

void ItemsDialog::AddRow(int row, const QString& text, const QString& value) {
  m_Table->insertRow(row);
  m_Table->setItem(row, kText, new QTableWidgetItem(text));
  m_Table->setItem(row, kValue, new QTableWidgetItem(value));
}

void ItemsDialog::Add() {
  const int row = m_Table->currentRow() + 1;
  AddRow(row, {}, {});
  m_Table->setCurrentCell(row, kText);
  m_Table->setFocus();
  m_Table->editItem(m_Table->item(row, kText));
}

void ItemsDialog::Remove() {
  const int row = m_Table->currentRow();
  if (row < 0) return;
  m_Table->removeRow(row);
  if (m_Table->rowCount() > 0) m_Table->setCurrentCell(qMin(row, m_Table->rowCount() - 1), kText);
  Update();
}

void ItemsDialog::Move(int by) {
  const int row = m_Table->currentRow();
  const int to = row + by;
  if (row < 0 || to < 0 || to >= m_Table->rowCount()) return;
  for (const int column : {kText, kValue}) {
    QTableWidgetItem* moved = m_Table->takeItem(row, column);
    m_Table->setItem(row, column, m_Table->takeItem(to, column));
    m_Table->setItem(to, column, moved);
  }
  m_Table->setCurrentCell(to, m_Table->currentColumn());
}

void ItemsDialog::PasteLines() {
  QStringList lines = QApplication::clipboard()->text().remove(u'\r').split(u'\n');
  if (!lines.isEmpty() && lines.last().isEmpty()) lines.removeLast();
  int row = m_Table->currentRow() + 1;
  for (const QString& line : lines) {
    const qsizetype tab = line.indexOf(u'\t');
    const QString text = line.left(tab);
    AddRow(row++, text, tab < 0 ? text : line.mid(tab + 1));
  }
  if (!lines.isEmpty()) m_Table->setCurrentCell(row - 1, kText);
}

void ItemsDialog::Update() {
  const int row = m_Table->currentRow();
  m_Remove->setEnabled(row >= 0);
  m_Up->setEnabled(row > 0);
  m_Down->setEnabled(row >= 0 && row + 1 < m_Table->rowCount());
}

bool ItemsDialog::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(object, event);
  auto* key = static_cast<QKeyEvent*>(event);
  if (key->matches(QKeySequence::Paste)) {
    PasteLines();
  } else if (key->matches(QKeySequence::Delete)) {
    Remove();
  } else if (key->key() == Qt::Key_Insert) {
    Add();
  } else {
    return QDialog::eventFilter(object, event);
  }
  return true;
}

void ItemsDialog::Store(CItems& items) const {
  items.Clear();
  for (int row = 0; row < m_Table->rowCount(); ++row) {
    auto item = MakeRef<CItem>();
    item->m_Text = qt::FromQString(m_Table->item(row, kText)->text());
    item->m_Value = qt::FromQString(m_Table->item(row, kValue)->text());
    items.Add(item);
  }
}

bool EditItems(QWidget& owner, CItems& items) {
  bool isChanged = false;
  qt::RunDialog(new ItemsDialog(owner, items), owner, [&](const ItemsDialog& dialog) {
    dialog.Store(items);
    isChanged = true;
  });
  return isChanged;
}

}  // namespace cardwright::workbench
