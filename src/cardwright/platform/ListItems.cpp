// SPDX-License-Identifier: MIT
#include "cardwright/platform/ListItems.h"

namespace cardwright {

namespace {

/// Rows from the first on, as many as there are when each one's turn comes.
class RowWalk final : public Enumerator {
 public:
  explicit RowWalk(Ref<ListViewWidget> list) : m_List(std::move(list)) {}

  bool Next(Variant& value) override {
    if (m_Row >= m_List->RowCount()) return false;
    value = MakeRef<ListItem>(m_List, ++m_Row);
    return true;
  }

 private:
  const Ref<ListViewWidget> m_List;
  int m_Row = 0;
};

}  // namespace

void ListItem::SetSelected(bool selected) {
  if (selected != IsSelected()) m_List->SetSelectedRow(selected ? m_Row : 0);
}

const MemberTable& ListItem::Members() const {
  static constexpr Member kMembers[] = {
      Property<&ListItem::GetText, &ListItem::SetText>(u"Text"),
      Property<&ListItem::IsChecked, &ListItem::SetChecked>(u"Checked"),
      Property<&ListItem::IsSelected, &ListItem::SetSelected>(u"Selected"),
      Property<&ListItem::Index>(u"Index"),
  };
  static const MemberTable table(kMembers, u"Text");
  return table;
}

Ref<ListItem> ListItems::Item(int row) const {
  if (row < 1 || row > Count()) Raise(ErrorNumber::SubscriptOutOfRange);
  return MakeRef<ListItem>(m_List, row);
}

std::unique_ptr<Enumerator> ListItems::Enumerate() { return std::make_unique<RowWalk>(m_List); }

const MemberTable& ListItems::Members() const {
  static constexpr Member kMembers[] = {
      Property<&ListItems::Count>(u"Count"),
      Property<&ListItems::Item>(u"Item"),
  };
  static const MemberTable table(kMembers, u"Item");
  return table;
}

const MemberTable& ColumnHeader::Members() const {
  static constexpr Member kMembers[] = {
      Property<&ColumnHeader::Width, &ColumnHeader::SetWidth>(u"Width"),
  };
  static const MemberTable table(kMembers);
  return table;
}

Ref<ColumnHeader> ColumnHeaders::Item(int column) const {
  if (column != 1) Raise(ErrorNumber::SubscriptOutOfRange);
  return MakeRef<ColumnHeader>(m_List);
}

const MemberTable& ColumnHeaders::Members() const {
  static constexpr Member kMembers[] = {
      Property<&ColumnHeaders::Count>(u"Count"),
      Property<&ColumnHeaders::Item>(u"Item"),
  };
  static const MemberTable table(kMembers, u"Item");
  return table;
}

}  // namespace cardwright
