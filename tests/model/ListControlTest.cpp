// SPDX-License-Identifier: MIT
// Item collections, combo box and list box.

#include <QTreeWidget>

#include "cardwright/model/CComboBox.h"
#include "cardwright/model/CListBox.h"
#include "model/Forms.h"
#include "shared/FakeDesktop.h"
#include "storage/TempFolder.h"

namespace cardwright {
namespace {

Ref<CItem> Item(std::u16string_view value, std::u16string_view text) {
  auto item = MakeRef<CItem>();
  item->m_Value = value;
  item->m_Text = text;
  return item;
}

CItems& ItemsOf(IControl& control) {
  return dynamic_cast<CItems&>(*control.PropertyValue(u"Items").ObjectPtr());
}

void Fill(IControl& control) {
  ItemsOf(control).Add(Item(u"1", u"One"));
  ItemsOf(control).Add(Item(u"2", u"Two"));
  ItemsOf(control).Add(Item(u"3", u"Three"));
  control.Refresh();
}

ComboWidget& ComboOf(IControl& control) { return WidgetOf<ComboWidget>(control); }
ListViewWidget& ViewOf(IControl& control) { return WidgetOf<ListViewWidget>(control); }

std::string Rows(const ListViewWidget& view) {
  std::string rows;
  for (int row = 1; row <= view.RowCount(); ++row)
    rows += (row > 1 ? "," : "") + view.RowText(row).ToUtf8() + (view.IsRowChecked(row) ? "*" : "");
  return rows;
}
std::string Rows(const ComboWidget& combo) {
  std::string rows;
  for (int row = 0; row < combo.ListCount(); ++row) rows += (row ? "," : "") + combo.ListText(row).ToUtf8();
  return rows;
}

constexpr std::string_view kItems =
    "ItemsNumber= 3\r\nValue_Item_1=1\r\nText_Item_1=One\r\nValue_Item_2=2\r\nText_Item_2=Two\r\n"
    "Value_Item_3=3\r\nText_Item_3=Three\r\n";

/// A project with one section S of these keys and the three items.
Text Project(const TempFolder& folder, std::string_view keys) {
  return folder.Put("a.frm", "[S]\r\n" + std::string(keys) + std::string(kItems));
}

}  // namespace

TEST(CItems, FindsItemsByPositionAndByKey) {
  const auto items = MakeRef<CItems>();
  const auto one = Item(u"1", u"One"), two = Item(u"2", u"Two");
  EXPECT_TRUE(items->Add(one));
  EXPECT_TRUE(items->Add(two));
  EXPECT_EQ(items->Count(), 2);
  EXPECT_EQ(items->Item(1).get(), one.get());
  EXPECT_EQ(items->Item(u"Item_2").get(), two.get());
  EXPECT_EQ(items->Item(u"ITEM_1").get(), one.get());
  for (const Variant& index : {Variant(0), Variant(3), Variant(-1), Variant(u"Item_3"), Variant(u"")})
    EXPECT_FALSE(items->Item(index));
}

TEST(CItems, AddsBeforeAnItemAndNeverReusesAKey) {
  const auto items = MakeRef<CItems>();
  items->Add(Item(u"1", u"One"));
  EXPECT_TRUE(items->Add(Item(u"2", u"Two"), Variant(1)));
  EXPECT_EQ(items->Item(1)->m_Text, u"Two");
  EXPECT_TRUE(items->Add(Item(u"3", u"Three"), Variant(u"Item_1")));
  EXPECT_EQ(items->Item(2)->m_Text, u"Three");
  EXPECT_FALSE(items->Add(Item(u"4", u"Four"), Variant(9)));
  EXPECT_EQ(items->Count(), 3);
  EXPECT_TRUE(items->Remove(u"Item_3"));
  items->Add(Item(u"5", u"Five"));
  EXPECT_FALSE(items->Item(u"Item_3"));
  EXPECT_FALSE(items->Item(u"Item_4"));  // the failed Add used the key
  EXPECT_EQ(items->Item(u"Item_5")->m_Text, u"Five");
}

TEST(CItems, ReturnsTrueFromRemove) {
  const auto items = MakeRef<CItems>();
  items->Add(Item(u"1", u"One"));
  EXPECT_TRUE(items->Remove(7));
  EXPECT_TRUE(items->Remove(u"none"));
  EXPECT_EQ(items->Count(), 1);
  EXPECT_TRUE(items->Remove(1));
  EXPECT_EQ(items->Count(), 0);
}

TEST(CItems, RestartsItsKeysAfterClear) {
  const auto items = MakeRef<CItems>();
  items->Add(Item(u"1", u"One"));
  items->Add(Item(u"2", u"Two"));
  items->Clear();
  EXPECT_EQ(items->Count(), 0);
  items->Add(Item(u"3", u"Three"));
  EXPECT_EQ(items->Item(u"Item_1")->m_Text, u"Three");
}

TEST(CItems, IsEnumeratedInOrder) {
  const auto items = MakeRef<CItems>();
  CallMethod(*items, u"add", {Variant(Item(u"1", u"One"))});
  CallMethod(*items, u"ADD", {Variant(Item(u"2", u"Two")), Variant(1)});
  EXPECT_EQ(ToLong(GetProperty(*items, u"count")), 2);
  const auto walk = items->Enumerate();
  Variant item;
  std::string texts;
  while (walk->Next(item)) texts += ToText(GetProperty(RequireObject(item), u"Text")).ToUtf8() + ".";
  EXPECT_EQ(texts, "Two.One.");
  Variant index(1);
  const Variant first = items->Invoke(items->DefaultMember(), CallKind::Get, Args(&index, 1));
  EXPECT_EQ(ToText(GetProperty(RequireObject(first), u"Value")), u"2");
  EXPECT_EQ(GetProperty(*items, u"Item", {Variant(9)}).ObjectPtr(), nullptr);
  EXPECT_EQ(ErrorOf([&] { CallMethod(*items, u"Add", {Variant(u"text")}); }), 424);
}

TEST(CItem, IsAPlainRecord) {
  const auto item = MakeRef<CItem>();
  LetProperty(*item, u"VALUE", 12);
  LetProperty(*item, u"text", u"Twelve");
  LetProperty(*item, u"Checked", u"True");
  EXPECT_EQ(ToText(GetProperty(*item, u"Value")), u"12");
  EXPECT_EQ(ToText(GetProperty(*item, u"Text")), u"Twelve");
  EXPECT_TRUE(ToBoolean(GetProperty(*item, u"Checked")));
}

TEST(ItemsRow, IsEditedInPlaceAndCannotBeReplaced) {
  InputForm on;
  for (const auto className : {u"CComboBox", u"CListBox"}) {
    const auto list = on.Add(className, className, className);
    CItems* items = &ItemsOf(*list);
    list->SetPropertyValue(u"Items", MakeRef<CItems>());
    list->SetPropertyValue(u"Items", u"x");
    EXPECT_EQ(&ItemsOf(*list), items);
  }
}

TEST(CComboBox, ShowsItsItemsAfterRefresh) {
  InputForm on;
  const auto combo = on.Add(u"CComboBox");
  Fill(*combo);
  EXPECT_EQ(Rows(ComboOf(*combo)), "One,Two,Three");
  ItemsOf(*combo).Remove(2);
  EXPECT_EQ(Rows(ComboOf(*combo)), "One,Two,Three");
  combo->Refresh();
  EXPECT_EQ(Rows(ComboOf(*combo)), "One,Three");
}

TEST(CComboBox, GivesTheValueOfTheChosenItem) {
  InputForm on;
  const auto combo = on.Add(u"CComboBox");
  Fill(*combo);
  EXPECT_EQ(combo->Value(), u"");
  ComboOf(*combo).SetListIndex(1);
  EXPECT_EQ(combo->Value(), u"2");
  EXPECT_EQ(combo->DisplayText(), u"Two");
}

TEST(CComboBox, HasNoValueForATypedText) {
  InputForm on;
  const auto combo = on.Add(u"CComboBox");
  combo->SetPropertyValue(u"Editable", u"True");
  Fill(*combo);
  combo->SetPropertyValue(u"Text", u"Four");
  EXPECT_EQ(combo->DisplayText(), u"Four");
  EXPECT_EQ(combo->Value(), u"");
}

TEST(CComboBox, SelectsWholeEntriesByTextInAnyCase) {
  InputForm on;
  const auto combo = on.Add(u"CComboBox");
  Fill(*combo);
  combo->SetPropertyValue(u"Text", u"tWO");
  EXPECT_EQ(combo->Value(), u"2");
  combo->SetPropertyValue(u"Text", u"Thr");  // no such entry: the selection is unchanged
  EXPECT_EQ(combo->Value(), u"2");
  ComboOf(*combo).SetListIndex(-1);
  combo->SetPropertyValue(u"Text", u"Four");  // not editable: not shown
  EXPECT_EQ(ComboOf(*combo).ListIndex(), -1);
  EXPECT_EQ(combo->DisplayText(), u"");
}

TEST(CComboBox, ReadsItsItemsAndThenItsText) {
  const TempFolder folder;
  const Text file = Project(folder, "Text=two\r\nUserName=cbo\r\nAttribute=KIND\r\nIsNeeded=True\r\n");
  InputForm on;
  const auto combo = on.Add(u"CComboBox");
  Fill(*combo);
  CItems* before = &ItemsOf(*combo);
  const Ref<CItems> held(before);
  EXPECT_TRUE(combo->Read(file, u"S"));
  EXPECT_NE(&ItemsOf(*combo), before);  // a new collection
  EXPECT_EQ(Rows(ComboOf(*combo)), "One,Two,Three");
  EXPECT_EQ(combo->Value(), u"2");
  EXPECT_EQ(combo->AttributeName(), u"KIND");
  EXPECT_EQ(TextOf(*combo, u"IsNeeded"), u"True");
  EXPECT_FALSE(ComboOf(*combo).IsLocked());
}

TEST(CComboBox, ShowsATextWithoutItemOnlyIfItIsEditable) {
  const TempFolder folder;
  InputForm on;
  const auto combo = on.Add(u"CComboBox");
  EXPECT_TRUE(combo->Read(Project(folder, "Text=Four\r\nEditable=True\r\n"), u"S"));
  EXPECT_EQ(ComboOf(*combo).ListIndex(), -1);
  EXPECT_EQ(combo->DisplayText(), u"Four");
  EXPECT_EQ(combo->Value(), u"");
  EXPECT_TRUE(combo->Read(Project(folder, "Text=Four\r\nEditable=False\r\n"), u"S"));
  EXPECT_EQ(ComboOf(*combo).ListIndex(), -1);
  EXPECT_EQ(combo->DisplayText(), u"");
}

TEST(CComboBox, IsLockedOnADesignSurface) {
  const TempFolder folder;
  DesignForm on;
  const auto combo = on.Add(u"CComboBox");
  EXPECT_TRUE(combo->Read(Project(folder, "Text=One\r\n"), u"S"));
  EXPECT_TRUE(ComboOf(*combo).IsLocked());
  EXPECT_EQ(Rows(ComboOf(*combo)), "One,Two,Three");
  EXPECT_EQ(combo->DisplayText(), u"One");
}

TEST(CComboBox, SavesItsItemsAfterItsOwnKeys) {
  const TempFolder folder;
  const Text file = folder.Put("a.frm", "");
  DesignForm on;
  const auto combo = on.Add(u"CComboBox");
  WidgetOf(*combo).Move(1, 2, 90, 20);
  ItemsOf(*combo).Add(Item(u"", u"None"));
  ItemsOf(*combo).Add(Item(u"w", u"Wet"), Variant(1));
  ItemsOf(*combo).Item(1)->m_Checked = true;
  combo->Refresh();
  combo->SetPropertyValue(u"Text", u"wet");
  EXPECT_TRUE(combo->Save(file, u"S"));
  EXPECT_EQ(folder.Get("a.frm"),
            "[S]\r\nType=ComboBox\r\nName=object_1\r\nUserName=a\r\nText=Wet\r\nBackColor=-2147483643\r\n"
            "FontName=MS Sans Serif\r\nFontSize= 8.25\r\nFontBold= 0\r\nFontItalic= 0\r\nFontUnderline= 0\r\n"
            "FontStrikethrough= 0\r\nLeft= 1\r\nTop= 2\r\nWidth= 90\r\nForeColor=-2147483640\r\n"
            "Editable=False\r\nAttribute=\r\nItemsNumber= 2\r\nIsNeeded=False\r\nMinusSignEnabled=True\r\n"
            "Value_Item_1=w\r\nText_Item_1=Wet\r\nValue_Item_2=\r\nText_Item_2=None\r\nContainer=\r\n");
}

TEST(CComboBox, IgnoresKeysUnlessItIsEditable) {
  FakeDesktop desktop;
  InputForm on;
  const auto combo = on.Add(u"CComboBox");
  Fill(*combo);
  QWidget& native = NativeOf(*combo);
  QTest::keyClick(&native, Qt::Key_Down);
  QTest::keyClick(&native, 'T');
  EXPECT_EQ(ComboOf(*combo).ListIndex(), -1);
  combo->SetPropertyValue(u"Editable", u"True");
  QTest::keyClick(&native, Qt::Key_Down);
  EXPECT_EQ(ComboOf(*combo).ListIndex(), 0);
}

TEST(CComboBox, FiltersKeysByTheTagWhileItIsEditable) {
  FakeDesktop desktop;
  InputForm on;
  const auto combo = on.Add(u"CComboBox");
  combo->SetPropertyValue(u"Editable", u"True");
  auto typed = [&](std::string_view text) {
    combo->SetPropertyValue(u"Text", u" ");
    ComboOf(*combo).SetSelStart(0);
    ComboOf(*combo).SetSelLength(1);
    for (const char c : text) QTest::keyClick(&NativeOf(*combo), c);
    return combo->DisplayText();
  };
  EXPECT_EQ(typed("a1"), u"a1");
  WidgetOf(*combo).SetTag(u"1");
  EXPECT_EQ(typed("a1.2"), u"12");
  EXPECT_EQ(typed("1-"), u"-1");
  combo->SetPropertyValue(u"MinusSignEnabled", u"False");
  EXPECT_EQ(typed("1-"), u"1");
}

TEST(CComboBox, RunsItsProcedures) {
  InputForm on;
  const auto combo = on.Add(u"CComboBox");
  combo->SetPropertyValue(u"Editable", u"True");
  Fill(*combo);
  combo->SetPropertyValue(u"Text", u"Two");
  EXPECT_EQ(on.owner->Take(), "run a_OnClick");
  QTest::keyClick(&NativeOf(*combo), 'x');
  EXPECT_EQ(on.owner->Take(), "run a_OnChange");
}

TEST(CComboBox, OpensTheScreenKeyboardOnlyIfItIsEditable) {
  FakeDesktop desktop;
  InputForm on;
  const auto combo = on.Add(u"CComboBox");
  on.Show();
  Module().enableScreenKeyboard = true;
  NativeOf(*combo).clearFocus();
  NativeOf(*combo).setFocus();
  EXPECT_TRUE(desktop.started.empty());
  NativeOf(*combo).clearFocus();
  combo->SetPropertyValue(u"Editable", u"True");
  NativeOf(*combo).setFocus();
  EXPECT_EQ(desktop.started.size(), 1U);
  Module().enableScreenKeyboard = false;
}

TEST(CListBox, ShowsItsItemsAndTheSelectedTextAfterRefresh) {
  InputForm on;
  const auto list = on.Add(u"CListBox");
  list->SetPropertyValue(u"Text", u"two");
  EXPECT_EQ(TextOf(*list, u"Text"), u"two");
  Fill(*list);
  EXPECT_EQ(Rows(ViewOf(*list)), "One,Two,Three");
  EXPECT_EQ(ViewOf(*list).SelectedRow(), 2);
  EXPECT_EQ(list->Value(), u"2");
  EXPECT_EQ(list->DisplayText(), u"two");  // the stored text, not the selected one
}

TEST(CListBox, GivesTheValueAndTheItemOfTheSelectedEntry) {
  InputForm on;
  const auto list = on.Add(u"CListBox");
  Fill(*list);
  EXPECT_EQ(list->Value(), u"");
  EXPECT_EQ(list->PropertyValue(u"CurrentItem").ObjectPtr(), nullptr);
  ViewOf(*list).SetSelectedRow(3);
  EXPECT_EQ(list->Value(), u"3");
  EXPECT_EQ(list->PropertyValue(13).ObjectPtr(), ItemsOf(*list).Item(3).get());
  ItemsOf(*list).Remove(3);
  EXPECT_EQ(list->Value(), u"");
}

TEST(CListBox, ShowsItsNameOnADesignSurface) {
  const TempFolder folder;
  DesignForm on;
  const auto list = on.Add(u"CListBox");
  EXPECT_EQ(Rows(ViewOf(*list)), "a");
  EXPECT_EQ(ViewOf(*list).SelectedRow(), 1);
  list->SetPropertyValue(u"Name", u"lstKind");
  EXPECT_EQ(Rows(ViewOf(*list)), "lstKind");
  EXPECT_TRUE(list->Read(Project(folder, "Text=Two\r\nUserName=lst\r\nMultiSelect=True\r\n"), u"S"));
  EXPECT_EQ(Rows(ViewOf(*list)), "lst");
  EXPECT_EQ(ViewOf(*list).SelectedRow(), 1);
  EXPECT_EQ(ItemsOf(*list).Count(), 3);
}

TEST(CListBox, ReadsItsItemsAndSelectsItsText) {
  const TempFolder folder;
  InputForm on;
  const auto list = on.Add(u"CListBox");
  WidgetOf(*list).Move(0, 0, 120, 60);
  EXPECT_TRUE(list->Read(Project(folder, "Text=TWO\r\n"), u"S"));
  EXPECT_EQ(Rows(ViewOf(*list)), "One,Two,Three");
  EXPECT_EQ(list->Value(), u"2");
  EXPECT_EQ(TextOf(*list, u"MultiSelect"), u"False");
  EXPECT_EQ(ViewOf(*list).ColumnWidth(), 116);
  EXPECT_TRUE(list->Read(Project(folder, "Text=Four\r\n"), u"S"));
  EXPECT_EQ(list->Value(), u"");
}

TEST(CListBox, ChecksTheSelectedEntryWithMultiSelect) {
  const TempFolder folder;
  InputForm on;
  const auto list = on.Add(u"CListBox");
  EXPECT_TRUE(list->Read(Project(folder, "Text=Two\r\nMultiSelect=True\r\n"), u"S"));
  EXPECT_EQ(Rows(ViewOf(*list)), "One,Two*,Three");
  EXPECT_EQ(TextOf(*list, u"MultiSelect"), u"True");
}

TEST(CListBox, FitsItsColumnInTheFormsScale) {
  const TempFolder folder;
  DesignForm design;
  const auto designed = design.Add(u"CListBox");
  EXPECT_TRUE(designed->Read(Project(folder, "Width=120\r\n"), u"S"));
  EXPECT_EQ(ViewOf(*designed).ColumnWidth(), 120);
  InputForm on;
  Module().formScaleMode = ScaleMode::Twips;
  on.surface.SetScale(ScaleMode::Twips);
  const auto list = on.Add(u"CListBox");
  EXPECT_TRUE(list->Read(Project(folder, "Width=1500\r\n"), u"S"));
  EXPECT_EQ(ViewOf(*list).ColumnWidth(), 1440);
  Module().formScaleMode = ScaleMode::Pixels;
}

TEST(CListBox, SelectsItsTextInAVeryNarrowList) {
  const TempFolder folder;
  InputForm on;
  const auto list = on.Add(u"CListBox");
  EXPECT_TRUE(list->Read(Project(folder, "Text=Two\r\nWidth=2\r\n"), u"S"));
  EXPECT_EQ(list->Value(), u"2");
}

TEST(CListBox, ShowsAndHidesItsCheckBoxes) {
  DesignForm on;
  const auto list = on.Add(u"CListBox");
  list->SetPropertyValue(u"MultiSelect", u"True");
  EXPECT_TRUE(ViewOf(*list).HasCheckBoxes());
  EXPECT_EQ(Rows(ViewOf(*list)), "a");
  list->SetPropertyValue(u"MultiSelect", false);
  EXPECT_FALSE(ViewOf(*list).HasCheckBoxes());
  EXPECT_EQ(list->PropertyDescription(u"MultiSelect"),
            u"Define the script to to be executed when the form is initialized.");
}

TEST(CListBox, StoresACheckMarkInItsItemAndRunsOnItemCheck) {
  InputForm on;
  const auto list = on.Add(u"CListBox");
  Fill(*list);
  list->SetPropertyValue(u"MultiSelect", true);
  EXPECT_EQ(Rows(ViewOf(*list)), "One,Two,Three");
  auto& tree = dynamic_cast<QTreeWidget&>(NativeOf(*list));
  on.owner->Take();
  tree.topLevelItem(1)->setCheckState(0, Qt::Checked);
  EXPECT_EQ(on.owner->Take(), "run a_OnItemCheck");
  EXPECT_TRUE(ItemsOf(*list).Item(2)->m_Checked);
  EXPECT_EQ(ViewOf(*list).SelectedRow(), 2);
  EXPECT_EQ(list->Value(), u"2");
  on.owner->canRunScripts = false;
  tree.topLevelItem(1)->setCheckState(0, Qt::Unchecked);
  EXPECT_EQ(on.owner->Take(), "");
  EXPECT_FALSE(ItemsOf(*list).Item(2)->m_Checked);
}

TEST(CListBox, SavesItsKeysInOrderWithoutCheckMarks) {
  const TempFolder folder;
  const Text file = folder.Put("a.frm", "");
  DesignForm on;
  const auto list = on.Add(u"CListBox");
  WidgetOf(*list).Move(1, 2, 90, 60);
  ItemsOf(*list).Add(Item(u"w", u"Wet"));
  ItemsOf(*list).Item(1)->m_Checked = true;
  list->SetPropertyValue(u"MultiSelect", true);
  list->SetPropertyValue(u"Text", u"wet");
  EXPECT_TRUE(list->Save(file, u"S"));
  EXPECT_EQ(
      folder.Get("a.frm"),
      "[S]\r\nType=ListBox\r\nName=object_1\r\nUserName=a\r\nText=wet\r\nBackColor=-2147483643\r\n"
      "FontName=MS Sans Serif\r\nFontSize= 8.25\r\nFontBold= 0\r\nFontItalic= 0\r\nFontUnderline= 0\r\n"
      "FontStrikethrough= 0\r\nLeft= 1\r\nTop= 2\r\nWidth= 90\r\nHeight= 60\r\nForeColor=-2147483640\r\n"
      "Attribute=\r\nItemsNumber= 1\r\nIsNeeded=False\r\nMultiSelect=True\r\n"
      "Value_Item_1=w\r\nText_Item_1=Wet\r\nContainer=\r\n");
}

}  // namespace cardwright
