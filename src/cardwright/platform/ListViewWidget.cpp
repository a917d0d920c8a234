// SPDX-License-Identifier: MIT
#include "cardwright/platform/ListItems.h"
#include "cardwright/platform/Widget.h"
#include "cardwright/platform/WidgetMembers.h"

namespace cardwright {

namespace {

// Rows, headers and items are views of the list view, created for each caller.
Ref<ListItems> GetListItems(ListViewWidget& list) { return MakeRef<ListItems>(&list); }
Ref<ColumnHeaders> GetColumnHeaders(ListViewWidget& list) { return MakeRef<ColumnHeaders>(&list); }

Ref<ListItem> GetSelectedItem(ListViewWidget& list) {
  const int row = list.SelectedRow();
  return row == 0 ? nullptr : MakeRef<ListItem>(&list, row);
}

void SetSelectedItem(ListViewWidget& list, Ref<ListItem> item) {
  if (item && !item->IsOf(list)) Raise(ErrorNumber::InvalidPropertyValue);
  list.SetSelectedRow(item ? item->Index() : 0);
}

constexpr Member kListView[] = {
    Property<&GetListItems>(u"ListItems"),
    Property<&GetSelectedItem, nullptr, &SetSelectedItem>(u"SelectedItem"),
    Property<&ListViewWidget::HasCheckBoxes, &ListViewWidget::SetCheckBoxes>(u"Checkboxes"),
    Property<&GetColumnHeaders>(u"ColumnHeaders"),
};

}  // namespace

const MemberTable& ListViewWidget::Members() const {
  static const std::vector<Member> members = WithWidgetMembers({kListView});
  static const MemberTable table(members);
  return table;
}

}  // namespace cardwright
