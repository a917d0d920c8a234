// SPDX-License-Identifier: MIT
#include <QAbstractButton>

#include "qt/Form.h"

namespace cardwright::qt {

TEST(CheckBox, ClicksWhenItsStateChangesByCodeOrByHand) {
  Form form;
  const Ref<StateWidget> box = form.AddAt<StateWidget>(0, u"vb.checkbox", u"a");
  Listener listener;
  box->SetListener(&listener);
  EXPECT_FALSE(box->IsOption());
  EXPECT_EQ(box->State(), 0);
  box->SetState(1);
  EXPECT_EQ(listener.Take(), "click");
  box->SetState(1);
  EXPECT_EQ(listener.Take(), "");
  Click(NativeOf(*box), QPoint(5, 15));
  EXPECT_EQ(box->State(), 0);
  EXPECT_EQ(listener.Take(), "down1+0@5,15 up1+0@5,15 click");
}

TEST(CheckBox, GoesGreyByCodeOnlyAndIsClearedByAClick) {
  Form form;
  const Ref<StateWidget> box = form.AddAt<StateWidget>(0, u"vb.checkbox", u"a");
  box->SetState(2);
  EXPECT_EQ(box->State(), 2);
  Click(NativeOf(*box), QPoint(5, 15));
  EXPECT_EQ(box->State(), 0);
  Click(NativeOf(*box), QPoint(5, 15));
  EXPECT_EQ(box->State(), 1);
  EXPECT_EQ(ErrorOf([&] { box->SetState(3); }), 380);
  EXPECT_EQ(ErrorOf([&] { box->SetState(-1); }), 380);
}

TEST(StateWidgets, TakeAClickOnAnyPoint) {
  Form form;
  for (const std::u16string_view kind : {u"vb.checkbox", u"vb.optionbutton"}) {
    const Ref<StateWidget> widget = form.AddAt<StateWidget>(0, kind, kind);
    widget->SetDisplayText(u"x");
    const QSize size = NativeOf(*widget).size();
    Click(NativeOf(*widget), QPoint(size.width() - 2, size.height() / 2));
    EXPECT_EQ(widget->State(), 1) << Text(kind).ToUtf8();
  }
}

class Options : public testing::Test {
 protected:
  Ref<StateWidget> AddOption(std::u16string_view name, Widget* container = nullptr) {
    Ref<StateWidget> option = form.Add<StateWidget>(u"vb.optionbutton", name, container);
    option->Move(5, static_cast<float>(30 * ++m_Count), 80, 20);
    option->SetListener(&listener);
    return option;
  }
  static std::string States(std::initializer_list<Ref<StateWidget>> options) {
    std::string states;
    for (const Ref<StateWidget>& option : options) states += static_cast<char>('0' + option->State());
    return states;
  }

  Form form;
  Listener listener;

 private:
  int m_Count = 0;
};

TEST_F(Options, ExcludeEachOtherInTheirContainerOnly) {
  const Ref<Widget> frame = form.Add(u"vb.frame", u"f");
  frame->Move(200, 0, 150, 200);
  const auto a = AddOption(u"a"), inFrame = AddOption(u"c", frame.get()), b = AddOption(u"b"),
             alsoInFrame = AddOption(u"d", frame.get());
  a->SetState(1);
  inFrame->SetState(1);
  EXPECT_EQ(States({a, b, inFrame, alsoInFrame}), "1010");
  b->SetState(1);
  EXPECT_EQ(States({a, b, inFrame, alsoInFrame}), "0110");
  Click(NativeOf(*alsoInFrame), QPoint(5, 10));
  EXPECT_EQ(States({a, b, inFrame, alsoInFrame}), "0101");
  EXPECT_TRUE(a->IsOption());
}

TEST_F(Options, ClickWhereCodeSelectsOrClearsThem) {
  const auto a = AddOption(u"a"), b = AddOption(u"b");
  a->SetState(1);
  EXPECT_EQ(listener.Take(), "click");
  b->SetState(-1);  // any number but 0 selects
  EXPECT_EQ(listener.Take(), "click");
  EXPECT_EQ(States({a, b}), "01");
  b->SetState(0);
  EXPECT_EQ(listener.Take(), "click");
  EXPECT_EQ(States({a, b}), "00");
  Click(NativeOf(*b), QPoint(5, 10));
  EXPECT_EQ(States({a, b}), "01");
  Click(NativeOf(*b), QPoint(5, 10));
  EXPECT_EQ(States({a, b}), "01");
}

TEST_F(Options, MoveWithTheArrowKeys) {
  const auto a = AddOption(u"a"), b = AddOption(u"b");
  a->SetState(1);
  form.Show();
  a->SetFocus();
  QTest::keyClick(&NativeOf(*a), Qt::Key_Down);
  EXPECT_EQ(States({a, b}), "01");
  EXPECT_TRUE(NativeOf(*b).hasFocus());
}

TEST_F(Options, StartANewGroupInAFrameThatTookAnOldOnesPlace) {
  for (int round = 0; round < 2; ++round) {
    const Ref<Widget> frame = form.Add(u"vb.frame", u"f");
    const auto a = AddOption(u"a", frame.get()), b = AddOption(u"b", frame.get());
    a->SetState(1);
    b->SetState(1);
    EXPECT_EQ(States({a, b}), "01");
    form.surface.Remove(u"f");
  }
}

TEST(Mnemonics, StayWithTheButtons) {
  Form form;
  const Ref<Widget> button = form.Add(u"vb.commandbutton", u"a");
  button->SetDisplayText(u"&Apply");
  EXPECT_EQ(dynamic_cast<QAbstractButton&>(NativeOf(*button)).shortcut(), QKeySequence("Alt+A"));
}

}  // namespace cardwright::qt
