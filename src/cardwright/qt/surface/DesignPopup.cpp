#include "cardwright/qt/surface/DesignPopup.h"

#include <QMenu>
#include <QPointer>

#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

void AddEntry(QMenu& menu, const MenuItem& item) {
  if (!item.m_Visible) return;
  QAction* const entry = item.IsSeparator() ? menu.addSeparator() : menu.addAction(ToQString(item.m_Caption));
  entry->setObjectName(ToQString(item.m_Name));
  entry->setEnabled(item.m_Enabled);
  entry->setCheckable(item.m_Checked);
  entry->setChecked(item.m_Checked);
}

}  // namespace

Text RunPopupMenu(QWidget& owner, std::span<const Ref<MenuItem>> items, QPoint place) {
  const QPointer<QMenu> menu = new QMenu(&owner);
  menu->setSeparatorsCollapsible(false);
  for (const Ref<MenuItem>& item : items) AddEntry(*menu, *item);
  const QAction* const chosen = menu->exec(place);
  const Text name = chosen ? FromQString(chosen->objectName()) : Text();
  delete menu.data();
  return name;
}

}  // namespace cardwright::qt
