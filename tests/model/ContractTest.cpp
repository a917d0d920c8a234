// SPDX-License-Identifier: MIT
// The contract that all control classes share.

#include "cardwright/model/IControl.h"
#include "cardwright/model/Rename.h"
#include "model/Forms.h"

namespace cardwright {
namespace {

/// An object that is no owner of forms.
class Stranger final : public TableObject {
 public:
  explicit Stranger(Text typeName = u"Stranger") : m_TypeName(std::move(typeName)) {}
  Text TypeName() const override { return m_TypeName; }

 protected:
  const MemberTable& Members() const override {
    static const MemberTable table(std::span<const Member>{});
    return table;
  }

 private:
  Text m_TypeName;
};

/// The contract itself, without behaviour.
class Bare final : public IControl {
 public:
  Text TypeName() const override { return u"IControl"; }
};

}  // namespace

TEST(IControl, ReturnsEmptyValues) {
  const auto bare = MakeRef<Bare>();
  bare->SetName(u"x");
  bare->SetLeft(3);
  bare->SetPropertyValue(u"Text", u"x");
  bare->SetZOrder(1);
  EXPECT_EQ(bare->Name(), u"");
  EXPECT_EQ(bare->Left(), 0);
  EXPECT_EQ(bare->PropertyCount(), 0);
  EXPECT_EQ(bare->PropertyName(0), u"");
  EXPECT_EQ(bare->PropertyType(u"Text"), PropertyTypeEnum::ptNone);
  EXPECT_TRUE(bare->PropertyValue(u"Text").IsEmpty());
  EXPECT_EQ(bare->ZOrder(), 0);
  EXPECT_FALSE(bare->Read(u"x", u"y"));
  EXPECT_FALSE(bare->Save(u"x", u"y"));
  EXPECT_TRUE(bare->Events().empty());
  EXPECT_EQ(bare->Value(), u"");
  EXPECT_FALSE(bare->BoundObject());
  EXPECT_FALSE(bare->ParentForm());
}

TEST(PropertyName, HasTheSpellingOfTheTable) {
  DesignForm on;
  const auto box = on.Add(u"CTextBox");
  EXPECT_EQ(box->PropertyName(u"Left"), u"Left");
  EXPECT_EQ(box->PropertyName(4), u"Left");
  EXPECT_EQ(box->PropertyName(u"left"), u"Left");
  EXPECT_EQ(box->PropertyName(u"4"), u"Left");  // a numeric text is a number
  EXPECT_EQ(box->PropertyCount(), 13);
}

TEST(PropertyName, IsEmptyForAnUnknownNameAndFailsOutOfBounds) {
  DesignForm on;
  const auto box = on.Add(u"CCheckBox");
  EXPECT_EQ(box->PropertyName(u"Depth"), u"");
  EXPECT_EQ(box->PropertyType(u"Depth"), PropertyTypeEnum::ptNone);
  EXPECT_EQ(box->PropertyDescription(u"Depth"), u"");
  for (const int number : {99, -1, 12, 70000}) {
    EXPECT_EQ(ErrorOf([&] { box->PropertyName(number); }), 9) << number;
    EXPECT_EQ(ErrorOf([&] { box->PropertyType(number); }), 9) << number;
    EXPECT_EQ(ErrorOf([&] { box->PropertyDescription(number); }), 9) << number;
  }
  // Hidden rows are not in the table: by name they are unknown.
  EXPECT_EQ(box->PropertyName(u"Value"), u"");
}

TEST(PropertyType, IsThatOfTheRowAsIsTheDescription) {
  DesignForm on;
  const auto box = on.Add(u"CTextBox");
  EXPECT_EQ(box->PropertyType(u"INPUTTYPE"), PropertyTypeEnum::ptList);
  EXPECT_EQ(box->PropertyType(0), PropertyTypeEnum::ptName);
  EXPECT_EQ(box->PropertyDescription(9), u"Set the input type for this control.");
  EXPECT_EQ(box->PropertyDescription(u"name"),
            u"Set the unique name which identifies the object in the form.");
}

TEST(PropertyValue, ReadsHiddenRowsByNameAndByNumbersAfterTheTable) {
  DesignForm on;
  const auto box = on.Add(u"CCheckBox");
  WidgetOf<StateWidget>(*box).SetState(1);
  EXPECT_EQ(TextOf(*box, u"Value"), u"1");
  EXPECT_EQ(ToText(box->PropertyValue(12)), u"1");
  EXPECT_TRUE(box->PropertyValue(13).IsEmpty());
}

TEST(PropertyValue, IgnoresAnUnknownIndex) {
  DesignForm on;
  const auto box = on.Add(u"CTextBox");
  for (const Variant& index : {Variant(99), Variant(-1), Variant(70000), Variant(u"Depth"), Variant(u"")}) {
    EXPECT_TRUE(box->PropertyValue(index).IsEmpty());
    EXPECT_EQ(ErrorOf([&] { box->SetPropertyValue(index, u"x"); }), 0);
  }
  EXPECT_EQ(on.owner->Take(), "");
}

TEST(PropertyValue, HasTheTypeOfItsRow) {
  DesignForm on;
  const auto box = on.Add(u"CTextBox");
  EXPECT_EQ(box->PropertyValue(u"Name").Type(), VarType::String);
  EXPECT_EQ(box->PropertyValue(u"Text").Type(), VarType::String);
  EXPECT_EQ(box->PropertyValue(u"BackColor").Type(), VarType::Long);
  EXPECT_EQ(box->PropertyValue(u"ForeColor").Type(), VarType::Long);
  for (const std::u16string_view row : {u"Left", u"Top", u"Width", u"Height"})
    EXPECT_EQ(box->PropertyValue(row).Type(), VarType::Single);
  EXPECT_EQ(box->PropertyValue(u"Font").ObjectPtr(), WidgetOf(*box).GetFont().get());
  EXPECT_EQ(box->PropertyValue(u"IsNeeded").Type(), VarType::String);
}

TEST(PropertyValue, KeepsFlagsAsTheTextsThatWereSet) {
  DesignForm on;
  const auto box = on.Add(u"CTextBox");
  box->SetPropertyValue(u"IsNeeded", u"perhaps");
  EXPECT_EQ(TextOf(*box, u"isneeded"), u"perhaps");
  box->SetPropertyValue(u"IsNeeded", true);
  EXPECT_EQ(TextOf(*box, u"isneeded"), u"True");
  box->SetPropertyValue(u"Attribute", u"DEPTH");
  EXPECT_EQ(box->AttributeName(), u"DEPTH");
}

TEST(FlagIsSet, IsFalseForATextThatIsNoBoolean) {
  EXPECT_TRUE(FlagIsSet(u"True"));
  EXPECT_TRUE(FlagIsSet(u"true"));
  EXPECT_TRUE(FlagIsSet(u"1"));
  EXPECT_FALSE(FlagIsSet(u"False"));
  EXPECT_FALSE(FlagIsSet(u""));
  EXPECT_FALSE(FlagIsSet(u"perhaps"));
}

TEST(Control, ReadsTheWidgetsNameAndWritesTheUserName) {
  DesignForm on;
  const auto box = on.Add(u"CTextBox", u"txtDepth", u"object_7");
  EXPECT_EQ(box->Name(), u"object_7");
  EXPECT_EQ(box->UserName(), u"txtDepth");
  box->SetName(u"txtOther");
  EXPECT_EQ(box->Name(), u"object_7");
  EXPECT_EQ(box->UserName(), u"txtOther");
  box->BindObject(nullptr);
  EXPECT_EQ(box->Name(), u"txtOther");
}

TEST(Control, RaisesPropertyChangedForMovesByAccessorsOnly) {
  DesignForm on;
  const auto box = on.Add(u"CTextBox");
  box->SetLeft(24);
  box->SetTop(16);
  box->SetWidth(200);
  box->SetHeight(40.5F);
  EXPECT_EQ(on.owner->Take(),
            "PropertyChanged 4 24; PropertyChanged 5 16; PropertyChanged 6 200; PropertyChanged 7 40.5");
  EXPECT_EQ(box->Left(), 24);
  box->SetLeft(24);  // raised even without a change
  EXPECT_EQ(on.owner->Take(), "PropertyChanged 4 24");
}

TEST(Control, SelectsItselfForMovesByRowsThatChangeSomething) {
  DesignForm on;
  const auto box = on.Add(u"CTextBox");
  box->SetPropertyValue(u"Left", 24);
  EXPECT_EQ(on.owner->Take(), "SetCtrl a");
  box->SetPropertyValue(u"left", u"24");
  box->SetPropertyValue(4, 24.0F);
  EXPECT_EQ(on.owner->Take(), "");
  box->SetPropertyValue(u"Top", 8);
  box->SetPropertyValue(u"Width", 90);
  box->SetPropertyValue(u"Height", 33.5F);
  EXPECT_EQ(on.owner->Take(), "SetCtrl a; SetCtrl a; SetCtrl a");
  EXPECT_EQ(ToSingle(box->PropertyValue(u"Height")), 33.5F);
}

TEST(Control, RaisesNothingForMovesWhileAFormIsFilledIn) {
  InputForm on;
  const auto box = on.Add(u"CTextBox");
  box->SetLeft(24);
  box->SetPropertyValue(u"Top", 8);
  box->SetForeColor(255);
  EXPECT_EQ(on.owner->Take(), "");
  EXPECT_EQ(box->Left(), 24);
  EXPECT_EQ(box->Top(), 8);
}

TEST(Control, RaisesPropertyChangedForForeColorButNotBackColor) {
  DesignForm on;
  const auto label = on.Add(u"CLabel");
  label->SetBackColor(255);
  EXPECT_EQ(on.owner->Take(), "");
  label->SetForeColor(65280);
  EXPECT_EQ(on.owner->Take(), "PropertyChanged 8 65280");
  label->SetPropertyValue(u"ForeColor", 1);
  label->SetPropertyValue(u"BackColor", 2);
  EXPECT_EQ(on.owner->Take(), "");
  EXPECT_EQ(label->ForeColor(), 1);
  EXPECT_EQ(label->BackColor(), 2);
}

TEST(Control, RaisesPropertyChangedWithTheRowNumberOfItsClass) {
  DesignForm on;
  on.Add(u"CTextBoxMultiline")->SetLeft(3);
  EXPECT_EQ(on.owner->Take(), "PropertyChanged 5 3");
  on.Add(u"CCommandButton", u"b", u"object_2")->SetLeft(3);
  EXPECT_EQ(on.owner->Take(), "PropertyChanged 3 3");
  // Its height follows the font and has no row.
  on.Add(u"CComboBox", u"c", u"object_3")->SetHeight(99);
  EXPECT_EQ(on.owner->Take(), "");
}

TEST(Control, SharesTheWidgetsFont) {
  DesignForm on;
  const auto a = on.Add(u"CLabel", u"a", u"object_1");
  const auto b = on.Add(u"CLabel", u"b", u"object_2");
  EXPECT_EQ(a->GetFont(), WidgetOf(*a).GetFont());
  b->SetPropertyValue(u"Font", a->GetFont());
  EXPECT_EQ(b->GetFont(), a->GetFont());
  LetProperty(*a->GetFont(), u"Bold", true);
  EXPECT_TRUE(b->GetFont()->Values().bold);
  EXPECT_NE(ErrorOf([&] { b->SetPropertyValue(u"Font", u"Arial"); }), 0);
  EXPECT_NE(ErrorOf([&] { b->SetPropertyValue(u"Font", Ref<Font>()); }), 0);
  EXPECT_EQ(b->GetFont(), a->GetFont());
}

TEST(Control, BindsOnlyTheWidgetOfItsClass) {
  DesignForm on;
  std::vector<Ref<Widget>> widgets;
  for (const ClassTable* entry : ControlClasses())
    widgets.push_back(on.surface.Add(entry->widgetIdentifier, entry->className, nullptr));
  for (std::size_t i = 0; i < widgets.size(); ++i)
    for (std::size_t j = 0; j < widgets.size(); ++j) {
      const Ref<Control> control = ControlClasses()[i]->create();
      const int error = ErrorOf([&] { control->BindObject(widgets[j]); });
      EXPECT_EQ(error, i == j ? 0 : 13) << i << " with the widget of " << j;
      EXPECT_EQ(control->BoundObject() == widgets[j].get(), i == j);
    }
}

TEST(Control, FailsWithObjectNotSetWithoutAWidget) {
  for (const ClassTable* entry : ControlClasses()) {
    const Ref<Control> control = entry->create();
    control->SetLeft(3);
    control->SetForeColor(3);
    control->SetZOrder(1);
    EXPECT_EQ(control->Left(), 0);
    EXPECT_EQ(control->ZOrder(), 1);
    EXPECT_FALSE(control->GetFont());
    EXPECT_EQ(ErrorOf([&] { control->PropertyValue(u"Left"); }), 91) << control->TypeName().ToUtf8();
    EXPECT_FALSE(control->Read(u"/", u"CONTROLS_1"));
    EXPECT_FALSE(control->Save(u"/", u"CONTROLS_1"));
  }
}

TEST(ParentForm, AcceptsDesignersAndFormsAndIgnoresOtherObjects) {
  DesignForm design;
  InputForm input;
  const Ref<Control> control = ControlClasses().front()->create();
  control->SetParentForm(MakeRef<Stranger>());
  control->SetParentForm(MakeRef<Stranger>(u"FormDesigner"));  // only by its name
  control->SetParentForm(nullptr);
  EXPECT_FALSE(control->ParentForm());
  EXPECT_EQ(control->Designer(), nullptr);
  EXPECT_EQ(control->Input(), nullptr);
  control->SetParentForm(input.owner);
  EXPECT_EQ(control->ParentForm(), input.owner.get());
  EXPECT_EQ(control->Designer(), nullptr);
  control->SetParentForm(design.owner);
  EXPECT_EQ(control->ParentForm(), design.owner.get());
  control->SetParentForm(MakeRef<Stranger>());
  EXPECT_EQ(control->ParentForm(), design.owner.get());
  control->ForgetOwner();
}

TEST(NameRow, RenamesOnlyThroughTheOwner) {
  DesignForm on;
  const auto a = on.Add(u"CTextBox", u"a", u"object_1");
  const auto b = on.Add(u"CTextBox", u"b", u"object_2");
  a->SetPropertyValue(u"Name", u"B");
  EXPECT_EQ(a->UserName(), u"a");
  a->SetPropertyValue(u"Name", u"Depth");
  EXPECT_EQ(TextOf(*a, u"Name"), u"Depth");
  EXPECT_EQ(on.Find(u"DEPTH").get(), a.get());
  EXPECT_EQ(on.Names(), "Form, b, Depth");

  InputForm input;
  const auto c = input.Add(u"CTextBox", u"c", u"object_1");
  c->SetPropertyValue(u"Name", u"d");
  EXPECT_EQ(c->UserName(), u"d");
  c->ForgetOwner();
  c->SetPropertyValue(u"Name", u"e");
  EXPECT_EQ(c->UserName(), u"d");
}

TEST(RenameInCollection, ChangesTheCaseOfAName) {
  DesignForm on;
  const auto a = on.Add(u"CTextBox", u"Label1", u"object_1");
  on.Add(u"CTextBox", u"b", u"object_2");
  a->SetPropertyValue(u"Name", u"LABEL1");
  EXPECT_EQ(a->UserName(), u"LABEL1");
  EXPECT_EQ(on.Names(), "Form, b, LABEL1");
  EXPECT_EQ(on.Find(u"label1").get(), a.get());
}

TEST(RenameInCollection, IgnoresAControlThatIsNotInTheCollection) {
  DesignForm on;
  on.Add(u"CTextBox", u"a", u"object_1");
  const Ref<Control> pasted = ControlClasses().front()->create();
  pasted->SetName(u"A");
  RenameInCollection(on.owner->Controls(), *pasted, u"free");
  EXPECT_EQ(on.Names(), "Form, a");
  EXPECT_EQ(on.owner->Controls().Count(), 2);
}

TEST(EveryControl, IgnoresDelete) {
  DesignForm on;
  const auto box = on.Add(u"CTextBox");
  box->Delete();
  EXPECT_TRUE(on.surface.Find(u"object_1"));
  EXPECT_EQ(on.Names(), "Form, a");
}

TEST(EveryControl, StoresItsZOrderWithoutMovingTheWidget) {
  DesignForm on;
  const auto a = on.Add(u"CTextBox", u"a", u"object_1");
  const auto b = on.Add(u"CTextBox", u"b", u"object_2");
  a->SetZOrder(0);
  b->SetZOrder(1);
  const QObjectList& children = on.canvas->children();
  EXPECT_LT(children.indexOf(&NativeOf(*a)), children.indexOf(&NativeOf(*b)));
  EXPECT_EQ(b->ZOrder(), 1);
}

TEST(FilenameFilter, IsEmptyForEveryControl) {
  DesignForm on;
  for (const ClassTable* entry : ControlClasses()) {
    const auto control = on.Add(entry->className, entry->className, entry->className);
    EXPECT_EQ(control->FilenameFilter(u"Text"), u"");
    EXPECT_EQ(control->FilenameFilter(99), u"");
    EXPECT_TRUE(control->PropertyList(u"Text").empty());
    EXPECT_TRUE(control->PropertyList(99).empty());
  }
}

}  // namespace cardwright
