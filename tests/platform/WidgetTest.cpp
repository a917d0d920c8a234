// SPDX-License-Identifier: MIT
#include "cardwright/platform/Widget.h"

#include "automation/Printing.h"
#include "platform/FakeWidgets.h"

namespace cardwright {
namespace {

struct Settable {
  const char16_t* name;
  Variant value;
};

TEST(Widget, CommonMembersAreFoundInAnyCase) {
  const auto label = MakeRef<FakeLabel>();
  const Settable settables[] = {
      {u"left", 10.0F},    {u"TOP", 20.0F},  {u"Width", 30.0F},   {u"Height", 40.0F}, {u"visible", true},
      {u"Enabled", false}, {u"Tag", u"tag"}, {u"BackColor", 255}, {u"ForeColor", -1}, {u"caption", u"Shown"}};
  for (const Settable& s : settables) {
    LetProperty(*label, s.name, s.value);
    const Variant read = GetProperty(*label, s.name);
    EXPECT_EQ(read.Type(), s.value.Type()) << Text(s.name).ToUtf8();
    EXPECT_EQ(ToText(read), ToText(s.value)) << Text(s.name).ToUtf8();
  }
  EXPECT_EQ(GetProperty(*label, u"name").String(), u"object_1");
  EXPECT_EQ(ErrorOf([&] { LetProperty(*label, u"Name", u"x"); }), 438);
  EXPECT_EQ(DefaultValue(label).String(), u"Shown");
}

TEST(Widget, MoveKeepsOmittedArguments) {
  const auto label = MakeRef<FakeLabel>();
  CallMethod(*label, u"Move", {9});
  EXPECT_EQ(label->Left(), 9);
  EXPECT_EQ(label->Top(), 2);
  CallMethod(*label, u"Move", {1, Variant::Missing(), 50});
  EXPECT_EQ(label->Top(), 2);
  EXPECT_EQ(label->Width(), 50);
  CallMethod(*label, u"Move", {1, 2, 3, 4.5});
  EXPECT_EQ(label->Height(), 4.5F);
  EXPECT_EQ(ErrorOf([&] { CallMethod(*label, u"Move"); }), 450);
}

TEST(Widget, ZOrderDefaultsToFront) {
  const auto label = MakeRef<FakeLabel>();
  CallMethod(*label, u"ZOrder");
  CallMethod(*label, u"ZOrder", {1});
  CallMethod(*label, u"SetFocus");
  CallMethod(*label, u"Refresh");
  EXPECT_EQ(label->calls, u"front back focus refresh ");
  EXPECT_EQ(ErrorOf([&] { CallMethod(*label, u"ZOrder", {2}); }), 380);
}

TEST(Widget, SharesTheFontThatIsSet) {
  const auto label = MakeRef<FakeLabel>();
  const auto font = MakeRef<Font>(FontValues{.name = u"Arial"});
  SetProperty(*label, u"Font", font);
  EXPECT_EQ(label->GetFont(), font.get());
  EXPECT_EQ(GetProperty(*label, u"Font").ObjectPtr(), font.get());
  LetProperty(*label, u"Font", u"Courier");
  EXPECT_EQ(label->GetFont(), font.get());
  EXPECT_EQ(font->Values().name, u"Courier");
  const auto other = MakeRef<Font>();
  LetProperty(*label, u"Font", other);
  EXPECT_EQ(label->GetFont(), other.get());
  EXPECT_EQ(ErrorOf([&] { SetProperty(*label, u"Font", Variant::Nothing()); }), 91);
  EXPECT_EQ(ErrorOf([&] { SetProperty(*label, u"Font", label); }), 13);
}

TEST(Widget, ReturnsItsContainer) {
  const auto frame = MakeRef<FakeLabel>();
  const auto label = MakeRef<FakeLabel>();
  EXPECT_EQ(GetProperty(*label, u"Container").ObjectPtr(), nullptr);
  label->container = frame;
  EXPECT_EQ(GetProperty(*label, u"Container").ObjectPtr(), frame.get());
}

TEST(StateWidget, ValueIsLongForACheckBoxAndBooleanForAnOption) {
  const auto check = MakeRef<FakeState>(false);
  LetProperty(*check, u"Value", u"2");
  EXPECT_EQ(DefaultValue(check).Type(), VarType::Long);
  EXPECT_EQ(DefaultValue(check).Long(), 2);
  EXPECT_EQ(ErrorOf([&] { LetProperty(*check, u"Value", 3); }), 380);
  EXPECT_EQ(ErrorOf([&] { LetProperty(*check, u"Value", true); }), 380);

  const auto option = MakeRef<FakeState>(true);
  LetProperty(*option, u"Value", -1);
  EXPECT_EQ(option->State(), 1);
  EXPECT_EQ(DefaultValue(option).Type(), VarType::Boolean);
  LetProperty(*option, u"Caption", u"one");
  EXPECT_EQ(option->DisplayText(), u"one");
}

TEST(TextWidget, HasATextAndASelection) {
  const auto box = MakeRef<FakeTextBox>();
  LetProperty(*box, u"Text", u"some text");
  LetProperty(*box, u"SelStart", 5);
  LetProperty(*box, u"SelLength", 4);
  EXPECT_EQ(GetProperty(*box, u"SelText").String(), u"text");
  LetProperty(*box, u"SelText", u"words");
  EXPECT_EQ(DefaultValue(box).String(), u"some words");
  LetProperty(*box, u"Locked", true);
  LetProperty(*box, u"MaxLength", 12);
  EXPECT_TRUE(GetProperty(*box, u"Locked").Boolean());
  EXPECT_EQ(GetProperty(*box, u"MaxLength").Long(), 12);
  EXPECT_EQ(ErrorOf([&] { GetProperty(*box, u"Caption"); }), 438);
}

TEST(ComboWidget, HasAListFromZero) {
  const auto combo = MakeRef<FakeCombo>();
  CallMethod(*combo, u"AddItem", {u"b"});
  CallMethod(*combo, u"AddItem", {u"a", 0});
  CallMethod(*combo, u"AddItem", {3});
  EXPECT_EQ(GetProperty(*combo, u"ListCount").Long(), 3);
  EXPECT_EQ(GetProperty(*combo, u"List", {0}).String(), u"a");
  EXPECT_EQ(GetProperty(*combo, u"List", {2}).String(), u"3");
  EXPECT_EQ(GetProperty(*combo, u"ItemData", {2}).Long(), 20);
  LetProperty(*combo, u"ListIndex", 1);
  EXPECT_EQ(combo->ListIndex(), 1);
  CallMethod(*combo, u"RemoveItem", {0});
  EXPECT_EQ(GetProperty(*combo, u"List", {0}).String(), u"b");
  CallMethod(*combo, u"Clear");
  EXPECT_EQ(combo->ListCount(), 0);
  LetProperty(*combo, u"Text", u"typed");
  EXPECT_EQ(DefaultValue(combo).String(), u"typed");
  EXPECT_TRUE(combo->FindMember(u"SelText") != kNoMember);
}

class ListView : public testing::Test {
 protected:
  ListView() {
    for (const char16_t* text : {u"one", u"two", u"three"}) m_List->AddRow(text);
  }
  Ref<FakeList> m_List = MakeRef<FakeList>();
};

TEST_F(ListView, ListsItsItemsFromOne) {
  const Variant held = GetProperty(*m_List, u"ListItems");
  Object& items = RequireObject(held);
  EXPECT_EQ(GetProperty(items, u"Count").Long(), 3);
  EXPECT_EQ(ToText(GetProperty(*m_List, u"ListItems", {2})), u"two");
  EXPECT_EQ(ErrorOf([&] { GetProperty(items, u"Item", {0}); }), 9);
  EXPECT_EQ(ErrorOf([&] { GetProperty(items, u"Item", {4}); }), 9);
  Text all;
  Variant item;
  for (const auto walk = items.Enumerate(); walk->Next(item);) all += ToText(item);
  EXPECT_EQ(all, u"onetwothree");
}

TEST_F(ListView, ChangesTheRowsThroughTheirItems) {
  const Variant second = GetProperty(*m_List, u"ListItems", {2});
  Object& item = RequireObject(second);
  LetProperty(item, u"Checked", true);
  LetProperty(item, u"Text", u"zwei");
  EXPECT_TRUE(m_List->IsRowChecked(2));
  EXPECT_EQ(m_List->RowText(2), u"zwei");
  EXPECT_EQ(GetProperty(item, u"Index").Long(), 2);
  LetProperty(item, u"Selected", true);
  EXPECT_EQ(m_List->SelectedRow(), 2);
  LetProperty(item, u"Selected", false);
  EXPECT_EQ(m_List->SelectedRow(), 0);
  m_List->SetSelectedRow(1);
  LetProperty(item, u"Selected", false);
  EXPECT_EQ(m_List->SelectedRow(), 1);
}

TEST_F(ListView, SelectsAnItemOfItsOwn) {
  EXPECT_EQ(GetProperty(*m_List, u"SelectedItem").ObjectPtr(), nullptr);
  SetProperty(*m_List, u"SelectedItem", GetProperty(*m_List, u"ListItems", {3}));
  EXPECT_EQ(m_List->SelectedRow(), 3);
  EXPECT_EQ(ToText(GetProperty(*m_List, u"SelectedItem")), u"three");
  const auto other = MakeRef<FakeList>();
  EXPECT_EQ(ErrorOf([&] { SetProperty(*other, u"SelectedItem", GetProperty(*m_List, u"ListItems", {1})); }),
            380);
  SetProperty(*m_List, u"SelectedItem", Variant::Nothing());
  EXPECT_EQ(m_List->SelectedRow(), 0);
}

TEST_F(ListView, HasOneColumnAndCheckBoxes) {
  const Variant header = GetProperty(*m_List, u"ColumnHeaders", {1});
  LetProperty(RequireObject(header), u"Width", 250);
  EXPECT_EQ(m_List->ColumnWidth(), 250);
  EXPECT_EQ(GetProperty(RequireObject(header), u"Width").Single(), 250);
  EXPECT_EQ(GetProperty(RequireObject(GetProperty(*m_List, u"ColumnHeaders")), u"Count").Long(), 1);
  EXPECT_EQ(ErrorOf([&] { GetProperty(*m_List, u"ColumnHeaders", {2}); }), 9);
  LetProperty(*m_List, u"Checkboxes", true);
  EXPECT_TRUE(m_List->HasCheckBoxes());
}

}  // namespace
}  // namespace cardwright
