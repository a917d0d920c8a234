// SPDX-License-Identifier: MIT
#include "workbench/grid/PropertyGrid.h"

#include <QAccessible>
#include <QEvent>
#include <QHeaderView>
#include <QVBoxLayout>

#include "cardwright/qt/values/QtText.h"
#include "workbench/grid/CellEditing.h"
#include "workbench/grid/ValueDelegate.h"
#include "workbench/project/KindName.h"

namespace cardwright::workbench {
namespace {

constexpr int kNoticeLines = 4;

// Only the weight differs from the font of the window.
QFont BoldFont() {
  QFont bold;
  bold.setBold(true);
  return bold;
}

}  // namespace

PropertyGrid::PropertyGrid(const Choices& choices, QWidget* parent)
    : QWidget(parent),
      m_Model(new PropertyModel(this)),
      m_View(new GridView(*m_Model, this)),
      m_Title(new QLabel(this)),
      m_Notice(new QLabel(this)) {
  m_View->setItemDelegate(new ValueDelegate(*m_Model, choices, m_View));
  m_Title->setContentsMargins(4, 4, 4, 2);
  m_Title->setFont(BoldFont());
  m_Notice->setWordWrap(true);
  m_Notice->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  m_Notice->setContentsMargins(4, 2, 4, 4);
  m_Notice->setTextFormat(Qt::PlainText);
  FitToFont();

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(2);
  layout->addWidget(m_Title);
  layout->addWidget(m_View, 1);
  layout->addWidget(m_Notice);

  connect(m_View->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &PropertyGrid::ShowDescription);
  connect(m_Model, &PropertyModel::Refused, this, &PropertyGrid::ShowRefusal);
  connect(m_Model, &PropertyModel::Assigned, this, [this] {
    ShowTitle();
    ShowDescription();
  });
  connect(m_Model, &PropertyModel::Discarded, this, &PropertyGrid::ShowDescription);
}

void PropertyGrid::FitToFont() {
  m_View->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
  m_View->setIconSize(QSize(1, 1) * fontMetrics().height());
  m_Notice->setFixedHeight(fontMetrics().lineSpacing() * kNoticeLines + 8);
}

void PropertyGrid::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitToFont();
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
  const QString kind = KindName(ClassOf(*control).type);
  const QString name = qt::ToQString(control->UserName());
  m_Title->setText(ClassOf(*control).type == ControlTypeEnum::ctDefault ? kind
                                                                        : tr("%1 – %2").arg(name, kind));
}

void PropertyGrid::FinishEditing() { FinishCell(*m_View); }

void PropertyGrid::EditRow(const QString& name) {
  const int row = m_Model->RowOf(name);
  m_View->setFocus(Qt::OtherFocusReason);
  if (row >= 0) m_View->setCurrentIndex(m_Model->index(row, PropertyModel::kValue));
}

void PropertyGrid::ShowDescription() {
  const QModelIndex current = m_View->currentIndex();
  const QString refusal = current.isValid() ? m_Model->RefusalOf(current.row()) : QString();
  m_Notice->setFont(refusal.isEmpty() ? QFont() : BoldFont());
  if (!refusal.isEmpty()) return m_Notice->setText(refusal);
  m_Notice->setText(current.isValid() ? m_Model->DescriptionOf(current.row()) : QString());
}

void PropertyGrid::ShowRefusal(const QString& reason) {
  m_Notice->setFont(BoldFont());
  m_Notice->setText(reason);
  QAccessibleEvent alert(m_Notice, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

}  // namespace cardwright::workbench
