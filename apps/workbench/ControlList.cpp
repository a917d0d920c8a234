#include "workbench/ControlList.h"

#include <QHeaderView>
#include <unordered_map>
#include <unordered_set>

#include "qt/QtText.h"
#include "workbench/Icons.h"
#include "workbench/Kinds.h"
#include "workbench/Stacking.h"

namespace cardwright::workbench {
namespace {

constexpr int kNumberRole = Qt::UserRole;

QTreeWidgetItem* MakeItem(const IControl& control, int number) {
  const ControlTypeEnum kind = KindOf(control);
  const QString name = qt::ToQString(control.UserName());
  auto* item = new QTreeWidgetItem({name});
  const bool isForm = kind == ControlTypeEnum::ctDefault;
  item->setIcon(0, isForm ? IconOf(Sign::Form) : IconOf(kind));
  item->setData(0, kNumberRole, number);
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

void ControlList::Show(cardwright::FormDesigner& designer) {
  m_IsFilling = true;
  clear();
  m_Controls.clear();
  const auto make = [&](const Ref<IControl>& control) {
    m_Controls.push_back(control);
    return MakeItem(*control, static_cast<int>(m_Controls.size()) - 1);
  };
  const Ref<IControl> form(AsControl(designer.Controls().Item(Variant(1))));
  QTreeWidgetItem* root = make(form);
  std::unordered_map<const Object*, QTreeWidgetItem*> frames;
  const std::vector<Ref<IControl>> order = FrontToBack(designer);
  std::vector<QTreeWidgetItem*> items;
  for (const Ref<IControl>& control : order) {
    items.push_back(make(control));
    frames.emplace(control->BoundObject().get(), items.back());
  }
  // A frame that lies in itself cannot be, but one that is gone can.
  QList<QTreeWidgetItem*> top;
  for (std::size_t i = 0; i < order.size(); ++i) {
    const Widget* container = ContainerOf(*order[i]);
    const auto frame = container ? frames.find(static_cast<const Object*>(container)) : frames.end();
    if (frame == frames.end()) {
      top.push_back(items[i]);
    } else {
      frame->second->addChild(items[i]);
    }
  }
  root->addChildren(top);
  addTopLevelItem(root);
  expandAll();
  m_IsFilling = false;
  Mark(designer.CurrentControl().get());
}

void ControlList::Mark(const IControl* control) {
  if (m_IsFilling || !control) return;
  m_IsFilling = true;
  for (QTreeWidgetItemIterator at(this); *at; ++at) {
    const auto number = static_cast<std::size_t>((*at)->data(0, kNumberRole).toInt());
    if (m_Controls[number].get() != control) continue;
    setCurrentItem(*at);
    break;
  }
  m_IsFilling = false;
}

void ControlList::OnCurrent(QTreeWidgetItem* item) {
  if (m_IsFilling || !item) return;
  const auto number = static_cast<std::size_t>(item->data(0, kNumberRole).toInt());
  const Ref<IControl> control = m_Controls[number];
  Q_EMIT Chosen(control.get());
}

}  // namespace cardwright::workbench
