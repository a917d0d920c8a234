// SPDX-License-Identifier: MIT
#include "workbench/panes/ControlList.h"

#include <algorithm>
#include <unordered_map>

#include "cardwright/qt/values/QtText.h"
#include "workbench/panes/Icons.h"
#include "workbench/project/KindName.h"
#include "workbench/project/Stacking.h"

namespace cardwright::workbench {
namespace {

constexpr int kRowRole = Qt::UserRole;

QTreeWidgetItem* MakeItem(const QString& name, ControlTypeEnum kind, std::size_t row) {
  auto* item = new QTreeWidgetItem({name});
  const bool isForm = kind == ControlTypeEnum::ctDefault;
  item->setIcon(0, isForm ? IconOf(Sign::Form) : IconOf(kind));
  item->setData(0, kRowRole, static_cast<int>(row));
  item->setData(0, Qt::AccessibleTextRole, QStringLiteral("%1, %2").arg(name, KindName(kind)));
  item->setToolTip(0, KindName(kind));
  return item;
}

}  // namespace

ControlList::ControlList(QWidget* parent) : QTreeWidget(parent) {
  setHeaderHidden(true);
  setColumnCount(1);
  setUniformRowHeights(true);
  setRootIsDecorated(false);
  setAccessibleName(tr("Controls, front one first"));
  connect(this, &QTreeWidget::currentItemChanged, this, &ControlList::OnCurrent);
}

std::vector<ControlList::Row> ControlList::RowsOf(cardwright::FormDesigner& designer) {
  std::vector<Row> rows;
  std::unordered_map<const Object*, std::size_t> places;
  const auto add = [&](const Ref<IControl>& control) {
    places.emplace(control->BoundObject().get(), rows.size());
    rows.push_back({control, qt::ToQString(control->Name()), qt::ToQString(control->UserName()),
                    ClassOf(*control).type, 0});
  };
  add(Ref<IControl>(AsControl(designer.Controls().Item(Variant(1)))));
  for (const Ref<IControl>& control : FrontToBack(designer)) add(control);
  // A frame never contains itself, but it may be gone.
  for (Row& row : rows) {
    const Widget* container = ContainerOf(*row.control);
    const auto frame = container ? places.find(static_cast<const Object*>(container)) : places.end();
    if (frame != places.end()) row.frame = frame->second;
  }
  return rows;
}

void ControlList::Show(cardwright::FormDesigner& designer) {
  std::vector<Row> rows = RowsOf(designer);
  const bool isSame = std::ranges::equal(rows, m_Rows, &Row::LooksLike);
  for (std::size_t i = 0; isSame && i < rows.size(); ++i) rows[i].item = m_Rows[i].item;
  const QSet<QString> closed = isSame ? QSet<QString>() : Closed();
  m_Rows = std::move(rows);
  if (!isSame) Fill();
  Mark(designer.CurrentControl().get());
  // After the selection, which expands the frames around it.
  for (const Row& row : m_Rows)
    if (closed.contains(row.object)) row.item->setExpanded(false);
}

void ControlList::Fill() {
  m_IsFilling = true;
  clear();
  for (std::size_t i = 0; i < m_Rows.size(); ++i)
    m_Rows[i].item = MakeItem(m_Rows[i].name, m_Rows[i].kind, i);
  std::vector<QList<QTreeWidgetItem*>> contents(m_Rows.size());
  for (std::size_t i = 1; i < m_Rows.size(); ++i) contents[m_Rows[i].frame].append(m_Rows[i].item);
  for (std::size_t i = 0; i < m_Rows.size(); ++i) m_Rows[i].item->addChildren(contents[i]);
  addTopLevelItem(m_Rows.front().item);
  expandAll();
  m_IsFilling = false;
}

QSet<QString> ControlList::Closed() const {
  QSet<QString> closed;
  for (const Row& row : m_Rows)
    if (row.item->childCount() > 0 && !row.item->isExpanded()) closed.insert(row.object);
  return closed;
}

void ControlList::Forget() {
  m_IsFilling = true;
  clear();
  m_Rows.clear();
  m_IsFilling = false;
}

void ControlList::Mark(const IControl* control) {
  const auto row = std::ranges::find(m_Rows, control, [](const Row& each) { return each.control.get(); });
  if (m_IsFilling || row == m_Rows.end()) return;
  m_IsFilling = true;
  setCurrentItem(row->item);
  m_IsFilling = false;
}

void ControlList::OnCurrent(QTreeWidgetItem* item) {
  if (m_IsFilling || !item) return;
  const Ref<IControl> control = m_Rows[static_cast<std::size_t>(item->data(0, kRowRole).toInt())].control;
  Q_EMIT Chosen(control.get());
}

}  // namespace cardwright::workbench
