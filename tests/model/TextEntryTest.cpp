// SPDX-License-Identifier: MIT
// Text boxes of one line and of several.

#include <QKeyEvent>

#include "model/Forms.h"
#include "shared/FakeDesktop.h"
#include "storage/TempFolder.h"

namespace cardwright {
namespace {

constexpr std::u16string_view kTextBoxes[] = {u"CTextBox", u"CTextBoxMultiline"};

/// The widget's text after `text` was typed into it, character by character.
Text Typed(IControl& control, std::string_view text) {
  WidgetOf(control).SetDisplayText({});
  for (const char c : text) QTest::keyClick(&NativeOf(control), c);
  return WidgetOf(control).DisplayText();
}

class TextEntry : public testing::Test {
 protected:
  void SetUp() override {
    Module().decimalSeparator = u".";
    on.Show();
  }
  void TearDown() override { Module().decimalSeparator = FindDecimalSeparator(); }

  FakeDesktop desktop;
  InputForm on;
};

}  // namespace

TEST_F(TextEntry, AcceptsAnyTextByDefault) {
  for (const auto className : kTextBoxes) {
    const auto box = on.Add(className, className, className);
    EXPECT_EQ(Typed(*box, "a-1.5"), u"a-1.5");
    EXPECT_EQ(WidgetOf(*box).Tag(), u"");
  }
  const auto box = on.Add(u"CTextBox");
  EXPECT_EQ(TextOf(*box, u"InputType"), u"Text");
  box->SetPropertyValue(u"InputType", u"String");  // any text other than Integer and Float
  EXPECT_EQ(Typed(*box, "a-1.5"), u"a-1.5");
  EXPECT_EQ(WidgetOf(*box).Tag(), u"");
}

TEST_F(TextEntry, AcceptsOnlyIntegersForIntegerInAnyCase) {
  const auto box = on.Add(u"CTextBox");
  box->SetPropertyValue(u"InputType", u"INTEGER");
  EXPECT_EQ(Typed(*box, "1a2.3"), u"123");
  EXPECT_EQ(WidgetOf(*box).Tag(), u"1");
  EXPECT_EQ(desktop.beeps, 2);
}

TEST_F(TextEntry, AcceptsRealNumbersWithTheSystemsSeparator) {
  const auto box = on.Add(u"CTextBox");
  box->SetPropertyValue(u"InputType", u"float");
  EXPECT_EQ(Typed(*box, "1.2.3x"), u"1.23");
  EXPECT_EQ(WidgetOf(*box).Tag(), u"2");
  Module().decimalSeparator = u",";
  EXPECT_EQ(Typed(*box, "1.2"), u"1,2");
}

TEST_F(TextEntry, TogglesTheSignIfAllowed) {
  const auto box = on.Add(u"CTextBox");
  box->SetPropertyValue(u"InputType", u"Float");
  EXPECT_EQ(Typed(*box, "12-"), u"-12");
  box->SetPropertyValue(u"MinusSignEnabled", u"False");
  EXPECT_EQ(Typed(*box, "12-"), u"12");
  box->SetPropertyValue(u"MinusSignEnabled", u"perhaps");  // a text that is no boolean counts as false
  EXPECT_EQ(Typed(*box, "12-"), u"12");
}

TEST_F(TextEntry, KeepsTheInputModeOfTheFirstKey) {
  const auto box = on.Add(u"CTextBox");
  box->SetPropertyValue(u"InputType", u"Integer");
  Typed(*box, "1");
  box->SetPropertyValue(u"InputType", u"Float");
  EXPECT_EQ(Typed(*box, "1.5"), u"15");
  // "0" counts as no mode yet.
  WidgetOf(*box).SetTag(u"0");
  EXPECT_EQ(Typed(*box, "1.5"), u"1.5");
  // Any other number is a mode without a filter.
  WidgetOf(*box).SetTag(u"7");
  EXPECT_EQ(Typed(*box, "x.y"), u"x.y");
}

TEST_F(TextEntry, HasNoInputModeWithSeveralLines) {
  const auto box = on.Add(u"CTextBoxMultiline");
  box->SetPropertyValue(u"MinusSignEnabled", u"False");
  EXPECT_EQ(Typed(*box, "-1"), u"-1");
  WidgetOf(*box).SetTag(u"1");
  EXPECT_EQ(Typed(*box, "-1x2"), u"12");
  WidgetOf(*box).SetTag(u"2");
  EXPECT_EQ(Typed(*box, "1.2x"), u"1.2");
}

TEST_F(TextEntry, FiltersNothingOnADesignSurface) {
  DesignForm design;
  const auto box = design.Add(u"CTextBox");
  design.Show();
  box->SetPropertyValue(u"InputType", u"Integer");
  EXPECT_EQ(Typed(*box, "abc"), u"abc");
  EXPECT_EQ(WidgetOf(*box).Tag(), u"");
}

TEST_F(TextEntry, RunsOnChangeForEachChange) {
  for (const auto className : kTextBoxes) {
    const auto box = on.Add(className, className, className);
    const std::string name = Text(className).ToUtf8();
    QTest::keyClick(&NativeOf(*box), 'a');
    EXPECT_EQ(on.owner->Take(), "run " + name + "_OnChange");
    box->SetPropertyValue(u"Text", u"b");
    EXPECT_EQ(on.owner->Take(), "run " + name + "_OnChange");
    on.owner->canRunScripts = false;
    box->SetPropertyValue(u"Text", u"c");
    EXPECT_EQ(on.owner->Take(), "");
    on.owner->canRunScripts = true;
  }
  DesignForm design;
  design.Add(u"CTextBox")->SetPropertyValue(u"Text", u"x");
  EXPECT_EQ(design.owner->Take(), "");
}

TEST_F(TextEntry, HasItsTextAsValue) {
  for (const auto className : kTextBoxes) {
    const auto box = on.Add(className, className, className);
    EXPECT_EQ(box->Value(), u"");
    box->SetPropertyValue(u"Text", u"12 m");
    EXPECT_EQ(box->Value(), u"12 m");
    EXPECT_EQ(box->DisplayText(), u"12 m");
    EXPECT_EQ(TextOf(*box, u"MinusSignEnabled"), u"True");
    EXPECT_EQ(TextOf(*box, u"IsNeeded"), u"False");
  }
}

TEST_F(TextEntry, ListsItsInputTypesByNameOrNumber) {
  const auto box = on.Add(u"CTextBox");
  const std::vector<Text> types = {u"Text", u"Float", u"Integer"};
  EXPECT_EQ(box->PropertyList(u"inputtype"), types);
  EXPECT_EQ(box->PropertyList(9), types);
  EXPECT_TRUE(box->PropertyList(10).empty());
  EXPECT_TRUE(box->PropertyList(u"Text").empty());
}

TEST_F(TextEntry, OpensTheScreenKeyboardIfItIsEnabledAndScriptsMayRun) {
  Module().enableScreenKeyboard = true;
  std::size_t starts = 0;
  for (const auto className : {u"CTextBox", u"CTextBoxMultiline"}) {
    const auto box = on.Add(className, className, className);
    NativeOf(*box).setFocus();
    EXPECT_EQ(desktop.started.size(), ++starts);
    NativeOf(*box).clearFocus();
    on.owner->canRunScripts = false;
    NativeOf(*box).setFocus();
    NativeOf(*box).clearFocus();
    on.owner->canRunScripts = true;
    Module().enableScreenKeyboard = false;
    NativeOf(*box).setFocus();
    EXPECT_EQ(desktop.started.size(), starts);
    Module().enableScreenKeyboard = true;
  }
  Module().enableScreenKeyboard = false;
}

TEST_F(TextEntry, OpensNoScreenKeyboardOnADesignSurface) {
  DesignForm design;
  const auto box = design.Add(u"CTextBox");
  design.Show();
  Module().enableScreenKeyboard = true;
  NativeOf(*box).clearFocus();
  NativeOf(*box).setFocus();
  Module().enableScreenKeyboard = false;
  EXPECT_TRUE(desktop.started.empty());
}

TEST_F(TextEntry, IsDisabledWhileTheDesignersMenuIsOpen) {
  DesignForm design;
  const auto box = design.Add(u"CTextBox");
  design.Show();
  design.owner->Take();
  QTest::mousePress(&NativeOf(*box), Qt::RightButton, {}, QPoint(3, 3));
  EXPECT_EQ(design.owner->Take(), "SetCtrl a; menu a switched off");
  EXPECT_TRUE(WidgetOf(*box).IsEnabled());
  design.owner->onMenu = [](IControl&) { Raise(5); };
  QTest::mousePress(&NativeOf(*box), Qt::RightButton, {}, QPoint(3, 3));
  EXPECT_TRUE(WidgetOf(*box).IsEnabled());
}

TEST_F(TextEntry, IsLockedOnADesignSurface) {
  const TempFolder folder;
  const Text file = folder.Put("a.frm", "[S]\r\nText=x\r\n");
  DesignForm design;
  const auto box = design.Add(u"CTextBox");
  design.Show();
  EXPECT_TRUE(box->Read(file, u"S"));
  EXPECT_TRUE(WidgetOf<TextWidget>(*box).IsLocked());
  EXPECT_EQ(Typed(*box, "y"), u"");
  const auto filled = on.Add(u"CTextBox");
  EXPECT_TRUE(filled->Read(file, u"S"));
  EXPECT_FALSE(WidgetOf<TextWidget>(*filled).IsLocked());
}

}  // namespace cardwright
