// SPDX-License-Identifier: MIT
// Check box and option button.

#include "model/Forms.h"
#include "storage/TempFolder.h"

namespace cardwright {
namespace {

constexpr std::u16string_view kStateControls[] = {u"CCheckBox", u"COptionButton"};

StateWidget& BoxOf(IControl& control) { return WidgetOf<StateWidget>(control); }
void ClickState(IControl& control) {
  QWidget& native = NativeOf(control);
  QTest::mouseClick(&native, Qt::LeftButton, {}, QPoint(8, native.height() / 2));
}

}  // namespace

TEST(Selected, IsStoredAsATextAndSetsTheWidget) {
  for (const auto className : kStateControls) {
    InputForm on;
    const auto box = on.Add(className);
    for (const Variant& set :
         {Variant(u"True"), Variant(true), Variant(u"1"), Variant(5), Variant(u"true")}) {
      BoxOf(*box).SetState(0);
      box->SetPropertyValue(u"Selected", set);
      EXPECT_EQ(BoxOf(*box).State(), 1);
      EXPECT_EQ(TextOf(*box, u"Selected"), u"True");
    }
    box->SetPropertyValue(u"Selected", u"False");
    EXPECT_EQ(BoxOf(*box).State(), 0);
    EXPECT_EQ(TextOf(*box, u"Selected"), u"False");
  }
}

TEST(Selected, IsFalseForABlankText) {
  for (const auto className : kStateControls) {
    InputForm on;
    const auto box = on.Add(className);
    for (const auto blank : {u"", u"   "}) {
      BoxOf(*box).SetState(1);
      box->SetPropertyValue(u"Selected", blank);
      EXPECT_EQ(BoxOf(*box).State(), 0);
      EXPECT_EQ(TextOf(*box, u"Selected"), u"False");
    }
  }
}

TEST(Selected, IsStoredWithoutEffectIfItIsNoBoolean) {
  const TempFolder folder;
  for (const auto className : kStateControls) {
    DesignForm on;
    const auto box = on.Add(className);
    BoxOf(*box).SetState(1);
    box->SetPropertyValue(u"Selected", u"Yes");
    EXPECT_EQ(BoxOf(*box).State(), 1);
    const Text file = folder.Put("a.frm", "");
    EXPECT_TRUE(box->Save(file, u"S"));
    EXPECT_NE(folder.Get("a.frm").find("Selected=Yes\r\n"), std::string::npos);
    EXPECT_EQ(TextOf(*box, u"Selected"), u"True");  // reading it updates it from the widget
    EXPECT_TRUE(box->Save(file, u"S"));
    EXPECT_NE(folder.Get("a.frm").find("Selected=True\r\n"), std::string::npos);
  }
}

TEST(Selected, IsSavedAsLastSetOrReadInSpiteOfLaterClicks) {
  const TempFolder folder;
  const Text file = folder.Put("a.frm", "");
  DesignForm on;
  const auto box = on.Add(u"CCheckBox");
  on.Show();
  EXPECT_TRUE(box->Save(file, u"S"));
  EXPECT_NE(folder.Get("a.frm").find("Selected=\r\n"), std::string::npos);  // never set
  box->SetPropertyValue(u"Selected", u"False");
  ClickState(*box);
  EXPECT_EQ(BoxOf(*box).State(), 1);
  EXPECT_TRUE(box->Save(file, u"S"));
  EXPECT_NE(folder.Get("a.frm").find("Selected=False\r\n"), std::string::npos);
}

TEST(Selected, IsFalseWithoutAKey) {
  const TempFolder folder;
  const Text file = folder.Put("a.frm", "[S]\r\nText=x\r\n[T]\r\nSelected=\r\n[U]\r\nSelected=True\r\n");
  for (const auto className : kStateControls) {
    for (const auto section : {u"S", u"T"}) {
      InputForm on;
      const auto box = on.Add(className);
      BoxOf(*box).SetState(1);
      EXPECT_TRUE(box->Read(file, section));
      EXPECT_EQ(BoxOf(*box).State(), 0);
      EXPECT_EQ(TextOf(*box, u"Selected"), u"False");
      EXPECT_TRUE(box->Read(file, u"U"));
      EXPECT_EQ(BoxOf(*box).State(), 1);
    }
  }
}

TEST(CCheckBox, HasItsStateAsValue) {
  InputForm on;
  const auto box = on.Add(u"CCheckBox");
  EXPECT_EQ(box->Value(), u"0");
  box->SetPropertyValue(u"Selected", true);
  EXPECT_EQ(box->Value(), u"1");
  box->SetPropertyValue(u"Value", u"0");  // read-only
  EXPECT_EQ(box->Value(), u"1");
  box->SetPropertyValue(u"Text", u"Dry");
  EXPECT_EQ(box->DisplayText(), u"Dry");
  EXPECT_EQ(TextOf(*box, u"IsNeeded"), u"False");
}

TEST(COptionButton, HasAValueOnlyWhileItIsSelected) {
  InputForm on;
  const auto a = on.Add(u"COptionButton", u"a", u"object_1");
  const auto b = on.Add(u"COptionButton", u"b", u"object_2");
  a->SetPropertyValue(u"Value", u"A");
  b->SetPropertyValue(u"Value", u"B");
  EXPECT_EQ(a->Value(), u"");
  a->SetPropertyValue(u"Selected", true);
  EXPECT_EQ(a->Value(), u"A");
  b->SetPropertyValue(u"Selected", true);
  EXPECT_EQ(a->Value(), u"");
  EXPECT_EQ(b->Value(), u"B");
  EXPECT_EQ(TextOf(*a, u"Value"), u"A");  // the row still has it
  EXPECT_TRUE(a->PropertyValue(u"IsNeeded").IsEmpty());
}

TEST(COptionButton, ExcludesTheOthersInItsContainerOnly) {
  InputForm on;
  const auto frame = on.Add(u"CFrame", u"fra", u"object_1");
  const auto outside = on.Add(u"COptionButton", u"a", u"object_2");
  const auto inside = FindControlClass(u"OptionButton")->create();
  inside->BindObject(on.surface.Add(u"vb.optionbutton", u"object_3", &WidgetOf(*frame)));
  outside->SetPropertyValue(u"Selected", true);
  inside->SetPropertyValue(u"Selected", true);
  EXPECT_EQ(BoxOf(*outside).State(), 1);
  EXPECT_EQ(BoxOf(*inside).State(), 1);
}

TEST(StateControls, AreSelectedByFocusAndNotByAClick) {
  for (const auto className : kStateControls) {
    DesignForm on;
    const auto box = on.Add(className);
    const auto other = on.Add(u"CTextBox", u"other", u"object_2");
    on.Show();
    NativeOf(*other).setFocus();
    on.owner->Take();
    NativeOf(*box).setFocus();
    EXPECT_EQ(on.owner->Take(), "SetCtrl a");
    ClickState(*box);
    EXPECT_EQ(on.owner->Take(), "");
  }
}

TEST(StateControls, RunOnClickWhenCodeChangesTheState) {
  for (const auto className : kStateControls) {
    InputForm on;
    const auto box = on.Add(className);
    box->SetPropertyValue(u"Selected", true);
    EXPECT_EQ(on.owner->Take(), "run a_OnClick");
    box->SetPropertyValue(u"Selected", true);
    EXPECT_EQ(on.owner->Take(), "");
  }
}

}  // namespace cardwright
