// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/platform/Widget.h"

namespace cardwright {

/// One row of a list view by its position. Default member: Text.
class ListItem final : public TableObject {
 public:
  ListItem(Ref<ListViewWidget> list, int row) : m_List(std::move(list)), m_Row(row) {}

  Text TypeName() const override { return u"ListItem"; }
  bool IsOf(const ListViewWidget& list) const noexcept { return m_List == &list; }
  /// From 1.
  int Index() const noexcept { return m_Row; }
  Text GetText() const { return m_List->RowText(m_Row); }
  void SetText(const Text& text) { m_List->SetRowText(m_Row, text); }
  bool IsChecked() const { return m_List->IsRowChecked(m_Row); }
  void SetChecked(bool checked) { m_List->SetRowChecked(m_Row, checked); }
  bool IsSelected() const { return m_List->SelectedRow() == m_Row; }
  void SetSelected(bool selected);

 protected:
  const MemberTable& Members() const override;

 private:
  const Ref<ListViewWidget> m_List;
  const int m_Row;
};

/// The rows of a list view, counted from 1; error 9 outside. Default member: Item.
class ListItems final : public TableObject {
 public:
  explicit ListItems(Ref<ListViewWidget> list) : m_List(std::move(list)) {}

  Text TypeName() const override { return u"ListItems"; }
  int Count() const { return m_List->RowCount(); }
  Ref<ListItem> Item(int row) const;
  std::unique_ptr<Enumerator> Enumerate() override;

 protected:
  const MemberTable& Members() const override;

 private:
  const Ref<ListViewWidget> m_List;
};

/// The head of a list view's column.
class ColumnHeader final : public TableObject {
 public:
  explicit ColumnHeader(Ref<ListViewWidget> list) : m_List(std::move(list)) {}

  Text TypeName() const override { return u"ColumnHeader"; }
  float Width() const { return m_List->ColumnWidth(); }
  void SetWidth(float width) { m_List->SetColumnWidth(width); }

 protected:
  const MemberTable& Members() const override;

 private:
  const Ref<ListViewWidget> m_List;
};

/// The one column of a list view as the collection that scripts expect. Default member: Item.
class ColumnHeaders final : public TableObject {
 public:
  explicit ColumnHeaders(Ref<ListViewWidget> list) : m_List(std::move(list)) {}

  Text TypeName() const override { return u"ColumnHeaders"; }
  int Count() const noexcept { return 1; }
  Ref<ColumnHeader> Item(int column) const;

 protected:
  const MemberTable& Members() const override;

 private:
  const Ref<ListViewWidget> m_List;
};

}  // namespace cardwright
