// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cardwright/platform/Widget.h"

namespace cardwright {

/// The state that every widget has, kept in plain fields, over one of the widget interfaces.
template <class Base>
class FakeWidget : public Base {
 public:
  Text TypeName() const override { return u"Fake"; }
  Text Name() const override { return u"object_1"; }
  float Left() const override { return m_Box[0]; }
  float Top() const override { return m_Box[1]; }
  float Width() const override { return m_Box[2]; }
  float Height() const override { return m_Box[3]; }
  void Move(float left, float top, float width, float height) override { m_Box = {left, top, width, height}; }
  OleColor BackColor() const override { return m_BackColor; }
  void SetBackColor(OleColor color) override { m_BackColor = color; }
  OleColor ForeColor() const override { return m_ForeColor; }
  void SetForeColor(OleColor color) override { m_ForeColor = color; }
  Ref<Font> GetFont() const override { return m_Font; }
  void SetFont(Ref<Font> font) override { m_Font = std::move(font); }
  Text DisplayText() const override { return m_Text; }
  void SetDisplayText(const Text& text) override { m_Text = text; }
  bool IsVisible() const override { return m_Visible; }
  void SetVisible(bool visible) override { m_Visible = visible; }
  bool IsEnabled() const override { return m_Enabled; }
  void SetEnabled(bool enabled) override { m_Enabled = enabled; }
  Text Tag() const override { return m_Tag; }
  void SetTag(const Text& tag) override { m_Tag = tag; }
  Ref<Widget> Container() const override { return container; }
  Ref<Object> Parent() const override { return nullptr; }
  void SetZOrder(StackPosition position) override {
    calls += position == StackPosition::Front ? u"front " : u"back ";
  }
  void SetFocus() override { calls += u"focus "; }
  void Refresh() override { calls += u"refresh "; }
  bool OpenMenu() override {
    calls += u"menu ";
    return true;
  }
  void SetListener(WidgetListener*) override {}

  Ref<Widget> container;
  Text calls;

 private:
  std::array<float, 4> m_Box{1, 2, 3, 4};
  OleColor m_BackColor = 0;
  OleColor m_ForeColor = 0;
  Ref<Font> m_Font = MakeRef<Font>();
  Text m_Text, m_Tag;
  bool m_Visible = false, m_Enabled = true;
};

using FakeLabel = FakeWidget<CaptionWidget>;

class FakeState : public FakeWidget<StateWidget> {
 public:
  explicit FakeState(bool option) : m_Option(option) {}
  int State() const override { return m_State; }
  void SetState(int state) override { m_State = state; }
  bool IsOption() const override { return m_Option; }

 private:
  bool m_Option;
  int m_State = 0;
};

template <class Base>
class FakeEntry : public FakeWidget<Base> {
 public:
  bool IsLocked() const override { return m_Locked; }
  void SetLocked(bool locked) override { m_Locked = locked; }
  int MaxLength() const override { return m_MaxLength; }
  void SetMaxLength(int length) override { m_MaxLength = length; }
  int SelStart() const override { return m_Start; }
  void SetSelStart(int start) override { m_Start = start; }
  int SelLength() const override { return m_Length; }
  void SetSelLength(int length) override { m_Length = length; }
  Text SelText() const override {
    return this->DisplayText().View().substr(static_cast<std::size_t>(m_Start),
                                             static_cast<std::size_t>(m_Length));
  }
  void SetSelText(const Text& text) override {
    std::u16string all(this->DisplayText().View());
    all.replace(static_cast<std::size_t>(m_Start), static_cast<std::size_t>(m_Length), text.View());
    this->SetDisplayText(all);
  }

 private:
  bool m_Locked = false;
  int m_MaxLength = 0, m_Start = 0, m_Length = 0;
};

using FakeTextBox = FakeEntry<TextWidget>;

class FakeCombo : public FakeEntry<ComboWidget> {
 public:
  bool IsEditable() const override { return true; }
  void SetEditable(bool) override {}
  int ListCount() const override { return static_cast<int>(m_Items.size()); }
  Text ListText(int index) const override { return m_Items.at(static_cast<std::size_t>(index)); }
  void SetListText(int index, const Text& text) override {
    m_Items.at(static_cast<std::size_t>(index)) = text;
  }
  std::int32_t ItemData(int index) const override { return index * 10; }
  void SetItemData(int /*index*/, std::int32_t /*data*/) override {}
  int ListIndex() const override { return m_Index; }
  void SetListIndex(int index) override { m_Index = index; }
  void AddItem(const Text& text, std::optional<int> index) override {
    m_Items.insert(m_Items.begin() + index.value_or(ListCount()), text);
  }
  void RemoveItem(int index) override { m_Items.erase(m_Items.begin() + index); }
  void Clear() override { m_Items.clear(); }

 private:
  std::vector<Text> m_Items;
  int m_Index = -1;
};

class FakeList : public FakeWidget<ListViewWidget> {
 public:
  bool HasCheckBoxes() const override { return m_CheckBoxes; }
  void SetCheckBoxes(bool shown) override { m_CheckBoxes = shown; }
  int RowCount() const override { return static_cast<int>(m_Rows.size()); }
  Text RowText(int row) const override { return At(row).text; }
  void SetRowText(int row, const Text& text) override { At(row).text = text; }
  bool IsRowChecked(int row) const override { return At(row).checked; }
  void SetRowChecked(int row, bool checked) override { At(row).checked = checked; }
  void AddRow(const Text& text) override { m_Rows.push_back({text, false}); }
  void RemoveRow(int row) override { m_Rows.erase(m_Rows.begin() + row - 1); }
  void Clear() override { m_Rows.clear(); }
  int SelectedRow() const override { return m_Selected; }
  void SetSelectedRow(int row) override { m_Selected = row; }
  float ColumnWidth() const override { return m_ColumnWidth; }
  void SetColumnWidth(float width) override { m_ColumnWidth = width; }

 private:
  struct Row {
    Text text;
    bool checked;
  };
  const Row& At(int row) const { return m_Rows.at(static_cast<std::size_t>(row - 1)); }
  Row& At(int row) { return m_Rows.at(static_cast<std::size_t>(row - 1)); }

  std::vector<Row> m_Rows;
  bool m_CheckBoxes = false;
  int m_Selected = 0;
  float m_ColumnWidth = 100;
};

}  // namespace cardwright
