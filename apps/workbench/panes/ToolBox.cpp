// SPDX-License-Identifier: MIT
#include "workbench/panes/ToolBox.h"

#include <QKeyEvent>

#include "workbench/panes/Icons.h"
#include "workbench/project/KindName.h"

namespace cardwright::workbench {
namespace {

ControlTypeEnum KindIn(const QListWidgetItem* item) {
  return item ? static_cast<ControlTypeEnum>(item->data(Qt::UserRole).toInt()) : ControlTypeEnum::ctDefault;
}

}  // namespace

ToolBox::ToolBox(QWidget* parent) : QListWidget(parent) {
  setAccessibleName(tr("Tool box"));
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setIconSize(IconSize(fontMetrics()));
  const auto add = [this](ControlTypeEnum kind, const QString& name, const QString& tip) {
    auto* item = new QListWidgetItem(IconOf(kind), name, this);
    item->setData(Qt::UserRole, static_cast<int>(kind));
    item->setToolTip(tip);
  };
  add(ControlTypeEnum::ctDefault, tr("Pointer"), tr("Selects, moves and sizes controls"));
  for (const ClassTable* kind : ControlClasses())
    add(kind->type, KindName(kind->type),
        tr("Draw it on the form with the mouse; Enter or a double click puts one there at once"));
  setCurrentRow(0);
  connect(this, &QListWidget::currentItemChanged, this,
          [this](const QListWidgetItem* item) { Q_EMIT KindChosen(KindIn(item)); });
  connect(this, &QListWidget::itemDoubleClicked, this, &ToolBox::Insert);
}

// Not on activation, which in some styles is a single click.
void ToolBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
    return QListWidget::keyPressEvent(event);
  Insert();
}

void ToolBox::changeEvent(QEvent* event) {
  QListWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) setIconSize(IconSize(fontMetrics()));
}

void ToolBox::Insert() {
  if (Kind() != ControlTypeEnum::ctDefault) Q_EMIT InsertWanted(Kind());
}

void ToolBox::Reset() {
  const QSignalBlocker blocker(this);
  setCurrentRow(0);
}

ControlTypeEnum ToolBox::Kind() const { return KindIn(currentItem()); }

}  // namespace cardwright::workbench
