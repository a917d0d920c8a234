#include "workbench/PropertyGrid.h"

#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "qt/QtText.h"
#include "workbench/Icons.h"
#include "workbench/Kinds.h"

namespace cardwright::workbench {
namespace {

constexpr int kNoticeLines = 4;

/// Enter edits as F2 does, and the keyboard stays in the column of values.
class GridView final : public QTableView {
 public:
  using QTableView::QTableView;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter || state() == EditingState) return QTableView::keyPressEvent(event);
    edit(currentIndex());
    event->accept();
  }
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
    QTableView::currentChanged(current, previous);
    if (current.isValid() && current.column() == PropertyModel::kName)
      setCurrentIndex(current.siblingAtColumn(PropertyModel::kValue));
  }
};

}  // namespace

PropertyGrid::PropertyGrid(const Choices& choices, QWidget* parent)
    : QWidget(parent),
      m_Model(new PropertyModel(this)),
      m_View(new GridView(this)),
      m_Title(new QLabel(this)),
      m_Notice(new QLabel(this)) {
  m_View->setModel(m_Model);
  m_View->setItemDelegate(new ValueDelegate(*m_Model, choices, m_View));
  m_View->setAccessibleName(tr("Properties"));
  m_View->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_View->setSelectionMode(QAbstractItemView::SingleSelection);
  m_View->setTabKeyNavigation(false);
  m_View->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                          QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
  m_View->setAlternatingRowColors(true);
  m_View->setShowGrid(false);
  m_View->setWordWrap(false);
  m_View->verticalHeader()->hide();
  m_View->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
  m_View->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  m_View->horizontalHeader()->setStretchLastSection(true);
  m_View->horizontalHeader()->resizeSection(PropertyModel::kName, fontMetrics().averageCharWidth() * 20);
  m_View->horizontalHeader()->setHighlightSections(false);

  QFont bold = font();
  bold.setBold(true);
  m_Title->setFont(bold);
  m_Title->setContentsMargins(4, 4, 4, 2);
  m_Notice->setWordWrap(true);
  m_Notice->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  m_Notice->setContentsMargins(4, 2, 4, 4);
  m_Notice->setFixedHeight(fontMetrics().lineSpacing() * kNoticeLines + 8);
  m_Notice->setTextFormat(Qt::PlainText);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(2);
  layout->addWidget(m_Title);
  layout->addWidget(m_View, 1);
  layout->addWidget(m_Notice);

  connect(m_View, &QTableView::clicked, m_View, [this](const QModelIndex& at) {
    if (at.column() == PropertyModel::kValue && (at.flags() & Qt::ItemIsEditable)) m_View->edit(at);
  });
  connect(m_View->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &PropertyGrid::ShowDescription);
  connect(m_Model, &PropertyModel::Refused, this, &PropertyGrid::ShowRefusal);
  connect(m_Model, &PropertyModel::Assigned, this, [this] {
    ShowTitle();
    ShowDescription();
  });
}

void PropertyGrid::Show(const Ref<IControl>& control) {
  const QModelIndex current = m_View->currentIndex();
  const QString row = current.isValid() ? m_Model->NameOf(current.row()) : QString();
  m_Model->SetControl(control);
  const int again = m_Model->RowOf(row);
  m_View->setCurrentIndex(m_Model->index(qMax(again, 0), PropertyModel::kValue));
  ShowTitle();
  ShowDescription();
}

void PropertyGrid::ShowTitle() {
  const Ref<IControl>& control = m_Model->Control();
  if (!control) return m_Title->clear();
  const QString kind = KindName(KindOf(*control));
  const QString name = qt::ToQString(control->UserName());
  m_Title->setText(KindOf(*control) == ControlTypeEnum::ctDefault ? kind : tr("%1 – %2").arg(name, kind));
}

void PropertyGrid::FinishEditing() {
  const QWidget* const focused = QApplication::focusWidget();
  if (focused && focused != m_View && m_View->isAncestorOf(focused)) m_View->setFocus();
}

void PropertyGrid::EditRow(const QString& name) {
  const int row = m_Model->RowOf(name);
  m_View->setFocus(Qt::OtherFocusReason);
  if (row >= 0) m_View->setCurrentIndex(m_Model->index(row, PropertyModel::kValue));
}

void PropertyGrid::ShowDescription() {
  const QModelIndex current = m_View->currentIndex();
  m_Notice->setForegroundRole(QPalette::WindowText);
  m_Notice->setFont(font());
  m_Notice->setText(current.isValid() ? m_Model->DescriptionOf(current.row()) : QString());
}

void PropertyGrid::ShowRefusal(const QString& reason) {
  QFont bold = font();
  bold.setBold(true);
  m_Notice->setFont(bold);
  m_Notice->setText(reason);
  QAccessibleEvent alert(m_Notice, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

}  // namespace cardwright::workbench
