// SPDX-License-Identifier: MIT
// Members and rows by name, in any case, as scripts use them.

#include "cardwright/model/CItems.h"
#include "model/Forms.h"
#include "storage/TempFolder.h"

namespace cardwright {
namespace {

/// The name as a careless script spells it.
Text Odd(std::u16string_view name) {
  std::u16string odd;
  for (std::size_t i = 0; i < name.size(); ++i) odd += i % 2 ? ToUpper(name[i]) : ToLower(name[i]);
  return Text(odd);
}

Variant Ask(IControl& control, std::u16string_view name) { return GetProperty(control, Odd(name)); }

constexpr std::u16string_view kContract[] = {u"Name",
                                             u"UserName",
                                             u"Left",
                                             u"Top",
                                             u"Height",
                                             u"Width",
                                             u"BackColor",
                                             u"ForeColor",
                                             u"Font",
                                             u"Object",
                                             u"ParentForm",
                                             u"PropertyCount",
                                             u"PropertyName",
                                             u"PropertyType",
                                             u"PropertyDescription",
                                             u"PropertyValue",
                                             u"Read",
                                             u"Save",
                                             u"ZOrder",
                                             u"Delete",
                                             u"Value",
                                             u"Text",
                                             u"AttributeName",
                                             u"PropertyList",
                                             u"AttachControls",
                                             u"LinkControlNameChanged",
                                             u"LinkControlDelete",
                                             u"Events",
                                             u"FilenameFilter",
                                             u"Refresh"};

}  // namespace

TEST(ByName, ProvidesTheMembersOfTheContractInOrder) {
  for (const ClassTable* entry : ControlClasses()) {
    const Ref<Control> control = entry->create();
    const std::vector<Text> names = control->MemberNames();
    ASSERT_GE(names.size(), std::size(kContract));
    for (std::size_t i = 0; i < std::size(kContract); ++i) {
      EXPECT_EQ(names[i], Text(kContract[i]));
      EXPECT_EQ(control->FindMember(Odd(kContract[i])), static_cast<MemberId>(i));
    }
    EXPECT_EQ(control->FindMember(u"Depth"), kNoMember);
    EXPECT_EQ(ErrorOf([&] { GetProperty(*control, u"Depth"); }), 438);
  }
}

TEST(ByName, ProvidesEveryRowAsAProperty) {
  for (const ClassTable* entry : ControlClasses()) {
    InputForm on;
    const auto control = on.Add(entry->className);
    for (const auto rows : {entry->rows, entry->hidden})
      for (const PropertyRow& row : rows) {
        if (row.name == u"Name") continue;  // a member of the contract: the widget's name
        const Variant byRow = control->PropertyValue(row.name);
        const Variant byName = Ask(*control, row.name);
        const std::string where = Text(entry->className).ToUtf8() + "." + Text(row.name).ToUtf8();
        if (byRow.IsObject()) {
          EXPECT_EQ(byName.ObjectPtr(), byRow.ObjectPtr()) << where;
        } else if (entry->className != u"COptionButton" || row.name != u"Value") {
          EXPECT_EQ(ToText(byName), ToText(byRow)) << where;
        }
      }
  }
}

TEST(ByName, GetsAndSetsTheContractsProperties) {
  DesignForm on;
  const auto label = on.Add(u"CLabel");
  for (const auto& [name, value] : {std::pair(u"Left", 10),
                                    {u"Top", 20},
                                    {u"Width", 130},
                                    {u"Height", 40},
                                    {u"BackColor", 255},
                                    {u"ForeColor", 65280},
                                    {u"ZOrder", 1}}) {
    LetProperty(*label, Odd(name), value);
    EXPECT_EQ(ToLong(Ask(*label, name)), value) << Text(name).ToUtf8();
  }
  EXPECT_EQ(on.owner->Take(),
            "PropertyChanged 4 10; PropertyChanged 5 20; PropertyChanged 6 130; PropertyChanged 7 40; "
            "PropertyChanged 8 65280");
  LetProperty(*label, u"nAME", u"lbl");
  EXPECT_EQ(ToText(Ask(*label, u"UserName")), u"lbl");
  EXPECT_EQ(ToText(Ask(*label, u"Name")), u"object_1");
  EXPECT_EQ(Ask(*label, u"Object").ObjectPtr(), label->BoundObject().get());
  EXPECT_EQ(Ask(*label, u"ParentForm").ObjectPtr(), on.owner.get());
  EXPECT_EQ(Ask(*label, u"Font").ObjectPtr(), label->GetFont().get());
  const auto font = MakeRef<Font>(FontValues{.name = u"Arial"});
  SetProperty(*label, u"fONT", font);
  EXPECT_EQ(label->GetFont(), font);
  EXPECT_EQ(ErrorOf([&] { LetProperty(*label, u"UserName", u"x"); }), 438);
}

TEST(ByName, ProvidesTheTableByParameterisedProperties) {
  DesignForm on;
  const auto box = on.Add(u"CTextBox");
  EXPECT_EQ(ToLong(Ask(*box, u"PropertyCount")), 13);
  EXPECT_EQ(ToText(GetProperty(*box, Odd(u"PropertyName"), {9})), u"InputType");
  EXPECT_EQ(ToLong(GetProperty(*box, Odd(u"PropertyType"), {u"inputtype"})), 13);
  EXPECT_EQ(ToLong(GetProperty(*box, Odd(u"PropertyType"), {u"none"})), -1);
  EXPECT_EQ(ToText(GetProperty(*box, Odd(u"PropertyDescription"), {0})).View().substr(0, 14),
            u"Set the unique");
  LetProperty(*box, Odd(u"PropertyValue"), u"Float", {u"INPUTTYPE"});
  EXPECT_EQ(ToText(GetProperty(*box, Odd(u"PropertyValue"), {9})), u"Float");
  EXPECT_TRUE(GetProperty(*box, u"PropertyValue", {99}).IsEmpty());
  EXPECT_EQ(ErrorOf([&] { GetProperty(*box, u"PropertyName", {99}); }), 9);
  EXPECT_EQ(ErrorOf([&] { GetProperty(*box, u"PropertyName"); }), 450);
  const Variant choices = GetProperty(*box, Odd(u"PropertyList"), {u"InputType"});
  EXPECT_EQ(ToText(choices.ArrayPtr()->Values()[2]), u"Integer");
  EXPECT_EQ(choices.ArrayPtr()->Dimensions()[0].lower, 0);
  EXPECT_EQ(GetProperty(*box, u"PropertyList", {0}).ArrayPtr()->Values().size(), 0U);
  const Variant events = Ask(*box, u"Events");
  EXPECT_EQ(events.ArrayPtr()->Values().size(), 2U);
  EXPECT_EQ(ToText(events.ArrayPtr()->Values()[0]), u"OnChange");
  EXPECT_EQ(ToText(GetProperty(*box, Odd(u"FilenameFilter"), {0})), u"");
}

TEST(ByName, WritesReadOnlyMembersThroughTheirRow) {
  InputForm on;
  const auto box = on.Add(u"CTextBox");
  LetProperty(*box, u"tEXT", u"12");
  EXPECT_EQ(ToText(Ask(*box, u"Text")), u"12");
  EXPECT_EQ(WidgetOf(*box).DisplayText(), u"12");
  const auto option = on.Add(u"COptionButton", u"opt", u"object_2");
  LetProperty(*option, u"vALUE", u"A");
  EXPECT_EQ(TextOf(*option, u"Value"), u"A");
  EXPECT_EQ(ToText(Ask(*option, u"Value")), u"");  // not selected
  const auto check = on.Add(u"CCheckBox", u"chk", u"object_3");
  LetProperty(*check, u"Value", 1);  // its row is read-only
  EXPECT_EQ(ToText(Ask(*check, u"Value")), u"0");
  LetProperty(*check, u"sELECTED", true);
  EXPECT_EQ(ToText(Ask(*check, u"Value")), u"1");
  LetProperty(*box, u"aTTRIBUTE", u"DEPTH");
  EXPECT_EQ(ToText(Ask(*box, u"AttributeName")), u"DEPTH");
}

TEST(ByName, PassesOptionalParametersToValue) {
  InputForm on;
  const auto box = on.Add(u"CTextBox");
  box->SetPropertyValue(u"Text", u"x");
  EXPECT_EQ(ToText(GetProperty(*box, u"Value")), u"x");
  EXPECT_EQ(ToText(GetProperty(*box, u"Value", {Variant(Array::FromValues({}))})), u"x");
}

TEST(ByName, CallsMethods) {
  const TempFolder folder;
  const Text file = folder.Put("a.frm", "[S]\r\nText=x\r\n");
  DesignForm on;
  const auto box = on.Add(u"CTextBox");
  EXPECT_TRUE(ToBoolean(CallMethod(*box, Odd(u"Read"), {file, u"S"})));
  EXPECT_EQ(box->DisplayText(), u"x");
  EXPECT_TRUE(ToBoolean(CallMethod(*box, Odd(u"Save"), {file, u"T"})));
  EXPECT_NE(folder.Get("a.frm").find("[T]\r\nType=TextBox\r\n"), std::string::npos);
  EXPECT_TRUE(ToBoolean(CallMethod(*box, Odd(u"Read"), {file})));  // the section is optional
  CallMethod(*box, Odd(u"Refresh"));
  CallMethod(*box, Odd(u"Delete"));
  const Ref<Collection> controls(&on.owner->Controls());
  CallMethod(*box, Odd(u"AttachControls"), {controls});
  CallMethod(*box, Odd(u"LinkControlDelete"), {controls});
  CallMethod(*box, Odd(u"LinkControlNameChanged"), {u"a", u"b"});
  EXPECT_EQ(ErrorOf([&] { CallMethod(*box, u"Read"); }), 450);
}

TEST(ByName, ProvidesItemsByTheDefaultMember) {
  InputForm on;
  const auto list = on.Add(u"CListBox");
  const Variant items = Ask(*list, u"Items");
  auto item = MakeRef<CItem>();
  item->m_Text = u"One";
  CallMethod(RequireObject(items), u"Add", {item});
  const Variant first = GetProperty(*list, u"iTEMS", {1});
  EXPECT_EQ(first.ObjectPtr(), item.get());
  EXPECT_EQ(Ask(*list, u"CurrentItem").ObjectPtr(), nullptr);
  CallMethod(*list, u"Refresh");
  EXPECT_EQ(WidgetOf<ListViewWidget>(*list).RowText(1), u"One");
}

TEST(ByName, ProvidesTheRowsOfTheForm) {
  InputForm on;
  LetProperty(*on.form, u"sHOWmENU", 1);
  LetProperty(*on.form, u"tHEMEnAME", u"wells");
  LetProperty(*on.form, u"tEXT", u"Wells");
  EXPECT_EQ(ToLong(Ask(*on.form, u"ShowMenu")), 1);
  EXPECT_EQ(ToText(Ask(*on.form, u"ThemeName")), u"wells");
  EXPECT_EQ(ToText(Ask(*on.form, u"StartMode")), u"Always");
  EXPECT_EQ(ToLong(Ask(*on.form, u"FeatureType")), -1);
  EXPECT_EQ(Ask(*on.form, u"Image").ObjectPtr(), nullptr);
  EXPECT_EQ(on.owner->Take(), "SetParentCaption Wells");
  EXPECT_EQ(ToLong(Ask(*on.form, u"Left")), 0);
}

}  // namespace cardwright
