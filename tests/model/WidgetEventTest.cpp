// SPDX-License-Identifier: MIT
// Label, frame and command button, and what all controls do on a design surface.

#include <QApplication>
#include <QPointer>

#include "model/Forms.h"

namespace cardwright {
namespace {

/// The part of a control's widget that the mouse reaches.
QWidget& MouseTarget(QWidget& native) {
  QWidget* part = native.childAt(5, 6);
  return part ? *part : native;
}

void Press(IControl& control, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {}) {
  QTest::mousePress(&MouseTarget(NativeOf(control)), button, modifiers, QPoint(5, 6));
}
void Release(IControl& control, Qt::MouseButton button = Qt::LeftButton) {
  QTest::mouseRelease(&MouseTarget(NativeOf(control)), button, {}, QPoint(5, 6));
}
void Click(QWidget& native) {
  QTest::mouseClick(&MouseTarget(native), Qt::LeftButton, {}, QPoint(5, native.height() / 2));
}
void Click(IControl& control) { Click(NativeOf(control)); }
void Move(IControl& control) {
  QWidget& target = MouseTarget(NativeOf(control));
  QMouseEvent event(QEvent::MouseMove, QPointF(7, 8), target.mapToGlobal(QPointF(7, 8)), Qt::NoButton, {},
                    {});
  QApplication::sendEvent(&target, &event);
}

const std::vector<Text> kAllClasses = [] {
  std::vector<Text> names;
  for (const ClassTable* entry : ControlClasses()) names.emplace_back(entry->className);
  return names;
}();

/// Classes whose widgets open nothing on a click.
const std::vector<Text> kPlainClasses = [] {
  std::vector<Text> names;
  for (const Text& name : kAllClasses)
    if (!name.View().ends_with(u"Selector")) names.push_back(name);
  return names;
}();

}  // namespace

class EveryControlClass : public testing::TestWithParam<Text> {};
INSTANTIATE_TEST_SUITE_P(, EveryControlClass, testing::ValuesIn(kAllClasses),
                         [](const auto& test) { return test.param.ToUtf8(); });

class EveryPlainClass : public testing::TestWithParam<Text> {};
INSTANTIATE_TEST_SUITE_P(, EveryPlainClass, testing::ValuesIn(kPlainClasses),
                         [](const auto& test) { return test.param.ToUtf8(); });

TEST_P(EveryControlClass, OpensTheDesignersMenuOnlyForTheRightButton) {
  DesignForm on;
  const auto control = on.Add(GetParam());
  on.Show();
  on.owner->Take();
  Press(*control, Qt::RightButton, Qt::ShiftModifier);
  Press(*control, Qt::RightButton, Qt::ControlModifier);
  EXPECT_EQ(on.owner->Take().find("menu"), std::string::npos);
  Press(*control, Qt::RightButton);
  const std::string calls = on.owner->Take();
  EXPECT_NE(calls.find("SetCtrl a; menu a"), std::string::npos) << calls;
  EXPECT_TRUE(WidgetOf(*control).IsEnabled());
}

TEST_P(EveryControlClass, OpensNoMenuWhileAFormIsFilledIn) {
  InputForm on;
  const auto control = on.Add(GetParam());
  on.Show();
  Press(*control, Qt::RightButton);
  Move(*control);
  EXPECT_EQ(on.owner->Take(), "");
}

TEST_P(EveryControlClass, SurvivesAMenuThatDeletesIt) {
  DesignForm on;
  Ref<Control> control = on.Add(GetParam());
  on.Show();
  QPointer<QWidget> native = &NativeOf(*control);
  on.owner->onMenu = [&](IControl& chosen) {
    const Text name = chosen.Name();
    on.owner->Controls().Remove(Variant(u"a"));
    on.surface.Remove(name);
  };
  control = nullptr;
  on.owner->SetCtrl(on.form);
  on.owner->Take();
  QTest::mousePress(&MouseTarget(*native), Qt::RightButton, {}, QPoint(5, 6));
  EXPECT_NE(on.owner->Take().find("menu a"), std::string::npos);
  EXPECT_EQ(on.Names(), "Form");
}

TEST_P(EveryControlClass, ShowsTheArrowPointerOnMouseMoves) {
  DesignForm on;
  const auto control = on.Add(GetParam());
  on.Show();
  on.owner->Take();
  Move(*control);
  EXPECT_EQ(on.owner->Take(), "arrow");
}

TEST_P(EveryControlClass, IsNotSelectedByTheFocusDuringADrag) {
  DesignForm on;
  const auto control = on.Add(GetParam());
  const auto other = on.Add(u"CTextBox", u"other", u"object_2");
  on.Show();
  if (GetParam() == u"CLabel" || GetParam() == u"CFrame") {
    EXPECT_EQ(NativeOf(*control).focusPolicy(), Qt::NoFocus);
    return;
  }
  NativeOf(*other).setFocus();
  on.owner->Take();
  Module().designDragging = true;
  NativeOf(*control).setFocus();
  EXPECT_EQ(on.owner->Take(), "");
  NativeOf(*other).setFocus();
  Module().designDragging = false;
  NativeOf(*control).setFocus();
  EXPECT_EQ(on.owner->Take(), "SetCtrl a");
}

TEST_P(EveryPlainClass, RunsItsProceduresOnlyIfScriptsMayRun) {
  InputForm on;
  const auto control = on.Add(GetParam());
  on.Show();
  // A combo box is clicked by the choice of an entry.
  auto* combo = dynamic_cast<ComboWidget*>(control->Bound());
  if (combo) combo->AddItem(u"x");
  auto act = [&](int entry) { combo ? combo->SetListIndex(entry) : Click(*control); };
  act(0);
  EXPECT_EQ(on.owner->Take(), "run a_OnClick");
  on.owner->canRunScripts = false;
  act(-1);
  EXPECT_EQ(on.owner->Take(), "");
}

TEST_P(EveryPlainClass, SurvivesAProcedureThatRemovesIt) {
  InputForm on;
  Ref<Control> control = on.Add(GetParam());
  on.Show();
  const Ref<Widget> widget(&WidgetOf(*control));
  QWidget& native = NativeOf(*control);
  on.owner->onRun = [&] {
    on.owner->Controls().Remove(Variant(u"a"));
    on.surface.Remove(u"object_1");
  };
  auto* combo = dynamic_cast<ComboWidget*>(widget.get());
  if (combo) combo->AddItem(u"x");
  control = nullptr;
  combo ? combo->SetListIndex(0) : Click(native);
  EXPECT_EQ(on.owner->Take(), "run a_OnClick");
  EXPECT_EQ(on.Names(), "Form");
}

TEST(TextBoxes, AreSelectedByAClickExceptDuringADrag) {
  for (const auto className : {u"CTextBox", u"CTextBoxMultiline"}) {
    DesignForm on;
    const auto box = on.Add(className);
    on.Show();
    NativeOf(*box).setFocus();
    on.owner->Take();
    Click(*box);
    EXPECT_EQ(on.owner->Take(), "SetCtrl a");
    Module().designDragging = true;
    Click(*box);
    EXPECT_EQ(on.owner->Take(), "");
    Module().designDragging = false;
  }
}

TEST(Lists, AreSelectedByTheFocusOnly) {
  for (const auto className : {u"CComboBox", u"CListBox"}) {
    DesignForm on;
    const auto list = on.Add(className);
    const auto other = on.Add(u"CTextBox", u"other", u"object_2");
    WidgetOf(*other).Move(200, 0, 80, 20);
    on.Show();
    NativeOf(*other).setFocus();
    on.owner->Take();
    NativeOf(*list).setFocus();
    EXPECT_EQ(on.owner->Take(), "SetCtrl a");
    if (auto* combo = dynamic_cast<ComboWidget*>(list->Bound())) {
      combo->AddItem(u"x");
      combo->SetListIndex(0);
    } else {
      Click(*list);
    }
    EXPECT_EQ(on.owner->Take(), "");
  }
}

TEST(CLabel, IsSelectedByAClick) {
  DesignForm on;
  const auto label = on.Add(u"CLabel");
  on.Show();
  on.owner->Take();
  Click(*label);
  EXPECT_EQ(on.owner->Take(), "SetCtrl a");
}

TEST(CLabel, RepaintsForANewText) {
  DesignForm on;
  const auto label = on.Add(u"CLabel");
  on.Show();
  const QImage before = NativeOf(*label).grab().toImage();
  label->SetPropertyValue(u"Text", u"Depth");
  EXPECT_EQ(label->DisplayText(), u"Depth");
  EXPECT_EQ(label->Value(), u"Depth");
  EXPECT_NE(NativeOf(*label).grab().toImage(), before);
}

TEST(CCommandButton, HasNoColorsAndNoValue) {
  DesignForm on;
  const auto button = on.Add(u"CCommandButton");
  button->SetForeColor(255);
  button->SetBackColor(255);
  EXPECT_EQ(button->ForeColor(), 0);
  EXPECT_EQ(button->BackColor(), 0);
  EXPECT_TRUE(button->PropertyValue(u"BackColor").IsEmpty());
  EXPECT_TRUE(button->PropertyValue(u"ForeColor").IsEmpty());
  button->SetPropertyValue(u"Text", u"Go");
  EXPECT_EQ(button->DisplayText(), u"Go");
  EXPECT_EQ(button->Value(), u"");
  EXPECT_EQ(button->AttributeName(), u"");
  EXPECT_EQ(on.owner->Take(), "");
}

TEST(CCommandButton, IsSelectedByClickAndFocus) {
  DesignForm on;
  const auto button = on.Add(u"CCommandButton");
  const auto other = on.Add(u"CTextBox", u"other", u"object_2");
  on.Show();
  NativeOf(*other).setFocus();
  on.owner->Take();
  NativeOf(*button).setFocus();
  EXPECT_EQ(on.owner->Take(), "SetCtrl a");
  Click(*button);
  EXPECT_EQ(on.owner->Take(), "SetCtrl a");
}

TEST(CFrame, ForwardsADrawingAndIsNotSelectedByItsClick) {
  DesignForm on;
  const auto frame = on.Add(u"CFrame");
  WidgetOf(*frame).Move(0, 0, 100, 80);
  on.Show();
  on.owner->Take();
  on.owner->typeToAdd = ControlTypeEnum::ctLabel;
  Press(*frame, Qt::LeftButton);
  EXPECT_EQ(on.owner->Take(), "down on a 1+0@5,6");
  Move(*frame);
  EXPECT_EQ(on.owner->Take(), "arrow; move0+0@7,8");
  Release(*frame);  // the click of the press itself selects nothing
  EXPECT_EQ(on.owner->Take(), "up1+0@5,6");
  on.owner->typeToAdd = ControlTypeEnum::ctDefault;
  Click(*frame);
  EXPECT_EQ(on.owner->Take(), "SetCtrl a");
}

TEST(CFrame, IgnoresTheClickAfterADrawing) {
  DesignForm on;
  const auto frame = on.Add(u"CFrame");
  WidgetOf(*frame).Move(0, 0, 100, 80);
  on.Show();
  on.owner->Take();
  on.owner->typeToAdd = ControlTypeEnum::ctLabel;
  Press(*frame, Qt::LeftButton);
  on.owner->typeToAdd = ControlTypeEnum::ctDefault;  // placed while the press was handled
  on.owner->Take();
  Release(*frame);
  EXPECT_EQ(on.owner->Take(), "");
  Click(*frame);
  EXPECT_EQ(on.owner->Take(), "SetCtrl a");
}

TEST(CFrame, RunsOnClickWhileAFormIsFilledIn) {
  InputForm on;
  const auto frame = on.Add(u"CFrame");
  WidgetOf(*frame).Move(0, 0, 100, 80);
  on.Show();
  Click(*frame);
  EXPECT_EQ(on.owner->Take(), "run a_OnClick");
}

}  // namespace cardwright
