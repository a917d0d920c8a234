// SPDX-License-Identifier: MIT
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>

#include "cardwright/platform/Widget.h"
#include "qt/Form.h"

namespace cardwright::qt {

namespace {

/// Sends what a keyboard would, for characters that QTest does not know.
void Press(QWidget& widget, int key, const QString& text, Qt::KeyboardModifiers modifiers = {}) {
  QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
  QCoreApplication::sendEvent(&widget, &event);
}

void Commit(QWidget& widget, const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  QCoreApplication::sendEvent(&widget, &event);
}

/// The part of a widget that the mouse reaches.
QWidget& MouseTarget(Widget& widget) {
  auto* area = qobject_cast<QAbstractScrollArea*>(&NativeOf(widget));
  return area ? *area->viewport() : NativeOf(widget);
}

/// Counts the events of one type that reach a widget.
class EventCount final : public QObject {
 public:
  EventCount(QWidget& widget, QEvent::Type type) : m_Type(type) { widget.installEventFilter(this); }
  int count = 0;
  int lastKey = 0;

 private:
  bool eventFilter(QObject* /*target*/, QEvent* event) override {
    if (event->type() != m_Type) return false;
    ++count;
    if (m_Type == QEvent::KeyPress) lastKey = static_cast<QKeyEvent*>(event)->key();
    return false;
  }
  QEvent::Type m_Type;
};

}  // namespace

class EveryWidget : public testing::TestWithParam<std::u16string_view> {};
INSTANTIATE_TEST_SUITE_P(, EveryWidget, testing::ValuesIn(kIdentifiers));

TEST_P(EveryWidget, FiresMouseEventsAndHidesThemFromTheSurface) {
  Form form;
  const Ref<Widget> widget = form.AddAt(0, GetParam(), u"a");
  widget->Move(10, 10, 120, 60);
  form.Show();
  Listener listener;
  widget->SetListener(&listener);
  EventCount presses(*form.canvas, QEvent::MouseButtonPress), moves(*form.canvas, QEvent::MouseMove);

  QWidget& native = NativeOf(*widget);
  native.setContextMenuPolicy(Qt::PreventContextMenu);
  QWindow& window = *form.window.windowHandle();
  const QPoint at = native.mapTo(&form.window, QPoint(7, 9));
  QTest::mouseMove(&window, at);
  QTest::mousePress(&window, Qt::RightButton, Qt::ShiftModifier | Qt::ControlModifier, at);
  QTest::mouseRelease(&window, Qt::RightButton, {}, at);
  EXPECT_EQ(listener.Take(), "down2+3@7,9 up2+0@7,9");
  listener.logsMoves = true;
  QTest::mouseMove(&window, at + QPoint(1, 1));
  EXPECT_EQ(listener.Take(), "move0+0@8,10");
  EXPECT_EQ(presses.count, 0);
  EXPECT_EQ(moves.count, 0);
}

TEST_P(EveryWidget, CountsTheMouseInTheScaleOfTheSurface) {
  Form form;
  form.surface.SetScale(ScaleMode::Twips);
  const Ref<Widget> widget = form.Add(GetParam(), u"a");
  Listener listener;
  widget->SetListener(&listener);
  QWidget& target = MouseTarget(*widget);
  QTest::mouseClick(&target, Qt::RightButton, {}, target.mapFrom(&NativeOf(*widget), QPoint(7, 9)));
  EXPECT_EQ(listener.Take(), "down2+0@105,135 up2+0@105,135");
}

TEST_P(EveryWidget, FiresNoEventsWhileItIsDisabled) {
  Form form;
  const Ref<Widget> widget = form.AddAt(0, GetParam(), u"a");
  form.Show();
  Listener listener;
  widget->SetListener(&listener);
  widget->SetEnabled(false);
  EXPECT_FALSE(widget->IsEnabled());
  listener.Take();  // it has lost the focus
  EventCount presses(*form.canvas, QEvent::MouseButtonPress);
  QTest::mouseClick(form.window.windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
  EXPECT_EQ(listener.Take(), "");
  EXPECT_EQ(presses.count, 1);
}

TEST_P(EveryWidget, MayBeRemovedByItsOwnHandler) {
  Form form;
  const Ref<Widget> frame = form.Add(u"vb.frame", u"frame");
  Ref<Widget> widget = form.Add(GetParam(), u"a", frame.get());
  const QPointer<QWidget> native(&MouseTarget(*widget));
  Listener listener;
  widget->SetListener(&listener);
  listener.onMouseDown = [&] {
    form.surface.Remove(u"frame");
    widget = nullptr;
  };
  QTest::mousePress(native.data(), Qt::LeftButton, {}, QPoint(3, 3));
  EXPECT_EQ(listener.log.size(), 1u);
  EXPECT_TRUE(native);
  QTest::mouseRelease(native.data(), Qt::LeftButton, {}, QPoint(3, 3));
  EXPECT_EQ(listener.log.size(), 1u);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(native);
  EXPECT_FALSE(form.surface.Find(u"a"));
}

TEST_P(EveryWidget, SwallowsNumberedErrorsOfItsHandler) {
  Form form;
  const Ref<Widget> widget = form.Add(GetParam(), u"a");
  Listener listener;
  widget->SetListener(&listener);
  listener.onMouseDown = [] { Raise(ErrorNumber::TypeMismatch); };
  listener.onClick = listener.onMouseDown;
  QTest::mouseClick(&MouseTarget(*widget), Qt::LeftButton, {}, QPoint(3, 3));
  EXPECT_GE(listener.log.size(), 1u);
}

TEST(Click, IsAPressAndAReleaseOnTheSameWidget) {
  for (const auto identifier : {u"vb.label", u"vb.frame", u"vb.textbox", u"vb.commandbutton"}) {
    Form form;
    const Ref<Widget> widget = form.AddAt(0, identifier, u"a");
    form.Show();
    Listener listener;
    widget->SetListener(&listener);
    QWidget& native = NativeOf(*widget);
    QTest::mouseClick(&native, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_TRUE(listener.Take().ends_with("down1+0@5,5 up1+0@5,5 click"));
    QTest::mouseClick(&native, Qt::RightButton, {}, QPoint(5, 5));
    EXPECT_EQ(listener.Take(), "down2+0@5,5 up2+0@5,5");
    QTest::mousePress(&native, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseRelease(&native, Qt::LeftButton, {}, QPoint(5, 200));
    EXPECT_EQ(listener.Take(), "down1+0@5,5 up1+0@5,200");
  }
}

TEST(Click, HappensOnceInADoubleClickOnALabel) {
  Form form;
  const Ref<Widget> label = form.AddAt(0, u"vb.label", u"a");
  Listener listener;
  label->SetListener(&listener);
  QTest::mouseClick(&NativeOf(*label), Qt::LeftButton, {}, QPoint(5, 5));
  QTest::mouseDClick(&NativeOf(*label), Qt::LeftButton, {}, QPoint(5, 5));
  QTest::mouseRelease(&NativeOf(*label), Qt::LeftButton, {}, QPoint(5, 5));
  const std::string told = listener.Take();
  EXPECT_EQ(told.find("click"), told.rfind("click"));
}

TEST(Click, ComesFromTheKeyboardToo) {
  Form form;
  const Ref<Widget> button = form.AddAt(0, u"vb.commandbutton", u"a");
  const Ref<Widget> box = form.AddAt(1, u"vb.checkbox", u"b");
  form.Show();
  Listener listener;
  button->SetListener(&listener);
  box->SetListener(&listener);
  button->SetFocus();
  box->SetFocus();
  listener.Take();
  QTest::keyClick(&NativeOf(*button), Qt::Key_Space);
  EXPECT_EQ(listener.Take(), "key32 char32 click");
  QTest::keyClick(&NativeOf(*button), Qt::Key_Return);
  EXPECT_EQ(listener.Take(), "key13 char13 click");
  QTest::keyClick(&NativeOf(*box), Qt::Key_Space);
  EXPECT_EQ(listener.Take(), "key32 char32 click");
}

struct KeyCase {
  int key;
  Qt::KeyboardModifiers modifiers;
  const char* text;
  const char* told;
};
void PrintTo(const KeyCase& key, std::ostream* out) { *out << key.told; }

class Keys : public testing::TestWithParam<KeyCase> {};
INSTANTIATE_TEST_SUITE_P(
    , Keys,
    testing::Values(KeyCase{Qt::Key_A, {}, "a", "key65 char97"},
                    KeyCase{Qt::Key_A, Qt::ShiftModifier, "A", "key65+1 char65"},
                    KeyCase{Qt::Key_5, {}, "5", "key53 char53"},
                    KeyCase{Qt::Key_5, Qt::KeypadModifier, "5", "key101 char53"},
                    KeyCase{Qt::Key_Period, Qt::KeypadModifier, ".", "key110 char46"},
                    KeyCase{Qt::Key_Exclam, Qt::ShiftModifier, "!", "key49+1 char33"},
                    KeyCase{Qt::Key_Minus, {}, "-", "key189 char45"},
                    KeyCase{Qt::Key_Egrave, {}, "\u00E8", "key255 char232"},
                    KeyCase{Qt::Key_Delete, {}, "\x7F", "key46"}, KeyCase{Qt::Key_Left, {}, "", "key37"},
                    KeyCase{Qt::Key_Left, Qt::KeypadModifier, "", "key37"},
                    KeyCase{Qt::Key_Down, {}, "", "key40"}, KeyCase{Qt::Key_F3, {}, "", "key114"},
                    KeyCase{Qt::Key_Backspace, {}, "\b", "key8 char8"},
                    KeyCase{Qt::Key_Return, {}, "\r", "key13 char13"},
                    KeyCase{Qt::Key_Enter, Qt::KeypadModifier, "\r", "key13 char13"},
                    KeyCase{Qt::Key_Escape, {}, "\x1B", "key27"},
                    KeyCase{Qt::Key_C, Qt::ControlModifier, "\x03", "key67+2"},
                    KeyCase{Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier, "@", "key81+6 char64"},
                    KeyCase{Qt::Key_Tab, {}, "\t", ""}, KeyCase{Qt::Key_Backtab, Qt::ShiftModifier, "", ""}));

TEST_P(Keys, ReachTheListenerByThePlatformsNumbers) {
  Form form;
  const Ref<Widget> box = form.AddAt(0, u"vb.textbox", u"a");
  Listener listener;
  box->SetListener(&listener);
  Press(NativeOf(*box), GetParam().key, QString::fromUtf8(GetParam().text), GetParam().modifiers);
  std::erase(listener.log, "change");
  EXPECT_EQ(listener.Take(), GetParam().told);
}

/// The widgets that text is typed into.
class EveryField : public testing::TestWithParam<std::u16string_view> {
 protected:
  EveryField() : field(form.AddAt(0, GetParam(), u"a")) {
    if (auto* combo = dynamic_cast<ComboWidget*>(field.get())) combo->SetEditable(true);
    form.Show();
    field->SetFocus();
    field->SetListener(&listener);
  }
  ~EveryField() override { field->SetListener(nullptr); }

  Form form;
  Ref<Widget> field;
  Listener listener;
};
INSTANTIATE_TEST_SUITE_P(, EveryField,
                         testing::Values(u"vb.textbox", u"CardwrightCtrl.MultilineTextBox", u"vb.combobox"));

TEST_P(EveryField, TakesTypedTextAndFiresChange) {
  QTest::keyClicks(&NativeOf(*field), "a1");
  EXPECT_EQ(field->DisplayText(), u"a1");
  EXPECT_EQ(listener.Take(), "key65 char97 change key49 char49 change");
}

TEST_P(EveryField, DropsAndReplacesKeysAsTheListenerSays) {
  listener.onKeyPress = [](char16_t& key) {
    if (key == u'.') key = u',';
    if (key == u'x') key = 0;
    if (key == u'e') key = u'\u00E9';
  };
  QTest::keyClicks(&NativeOf(*field), "1x.2e");
  EXPECT_EQ(field->DisplayText(), u"1,2\u00E9");
}

TEST_P(EveryField, DropsKeysThatTheListenerSetsToZero) {
  listener.onKeyDown = [](int& keyCode, int& shift) { keyCode = shift = 0; };
  QTest::keyClicks(&NativeOf(*field), "ab");
  EXPECT_EQ(field->DisplayText(), u"");
  EXPECT_EQ(listener.Take(), "key65 key66");
}

TEST_P(EveryField, FiltersWhatAnInputMethodCommits) {
  listener.onKeyPress = [](char16_t& key) {
    if (key == u'b') key = 0;
    if (key == u'c') key = u'C';
  };
  Commit(NativeOf(*field), "abc");
  EXPECT_EQ(field->DisplayText(), u"aC");
  Commit(NativeOf(*field), "b");
  EXPECT_EQ(field->DisplayText(), u"aC");
  Commit(NativeOf(*field), QString::fromUtf8("\u3042\U0001F600"));
  EXPECT_EQ(field->DisplayText(), u"aC\u3042\U0001F600");
}

TEST_P(EveryField, LetsTheListenerRewriteTheTextUnderTheKey) {
  auto& text = dynamic_cast<TextWidget&>(*field);
  listener.onKeyPress = [&](char16_t& key) {
    if (key != u'-') return;
    const int start = text.SelStart();
    text.SetDisplayText(u"-" + text.DisplayText());
    text.SetSelStart(start + 1);
    key = 0;
  };
  QTest::keyClicks(&NativeOf(*field), "12-3");
  EXPECT_EQ(field->DisplayText(), u"-123");
}

TEST_P(EveryField, PassesTabOn) {
  const Ref<Widget> next = form.AddAt(3, u"vb.textbox", u"next");
  listener.onKeyDown = [](int& keyCode, int& /*shift*/) { keyCode = 0; };
  QTest::keyClick(&NativeOf(*field), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &NativeOf(*next));
}

TEST_P(EveryField, LeavesEscToTheForm) {
  EventCount keys(*form.canvas, QEvent::KeyPress);
  QTest::keyClick(&NativeOf(*field), Qt::Key_Escape);
  EXPECT_EQ(keys.lastKey, Qt::Key_Escape);
  listener.onKeyDown = [](int& keyCode, int& /*shift*/) { keyCode = 0; };
  QTest::keyClick(&NativeOf(*field), Qt::Key_Escape);
  EXPECT_EQ(keys.count, 2);
}

TEST_P(EveryField, LeavesEnterToTheFormUnlessItStartsALine) {
  const bool isMultiline = field->TypeName() == u"MultilineTextBox";
  EventCount keys(*form.canvas, QEvent::KeyPress);
  QTest::keyClick(&NativeOf(*field), Qt::Key_Return);
  EXPECT_EQ(keys.count, isMultiline ? 0 : 1);
  EXPECT_EQ(field->DisplayText(), isMultiline ? u"\r\n" : u"");
  listener.onKeyDown = [](int& keyCode, int& /*shift*/) { keyCode = 0; };
  QTest::keyClick(&NativeOf(*field), Qt::Key_Enter);
  EXPECT_EQ(keys.count, isMultiline ? 0 : 2);
}

TEST_P(EveryField, TakesNoTypingWhileItIsLocked) {
  auto& text = dynamic_cast<TextWidget&>(*field);
  text.SetLocked(true);
  EXPECT_TRUE(text.IsLocked());
  QTest::keyClicks(&NativeOf(*field), "abc");
  Commit(NativeOf(*field), "d");
  EXPECT_EQ(field->DisplayText(), u"");
  text.SetLocked(false);
  QTest::keyClicks(&NativeOf(*field), "e");
  EXPECT_EQ(field->DisplayText(), u"e");
}

TEST(Enter, ReachesTheFormFromAListAndFromAComboThatDropsEveryKey) {
  Form form;
  const Ref<ListViewWidget> list = form.AddAt<ListViewWidget>(0, u"MSComctlLib.ListViewCtrl.2", u"l");
  const Ref<ComboWidget> combo = form.AddAt<ComboWidget>(1, u"vb.combobox", u"c");
  list->AddRow(u"one");
  list->SetSelectedRow(1);
  form.Show();
  Listener listener;
  combo->SetListener(&listener);
  listener.onKeyDown = [](int& keyCode, int& shift) { keyCode = shift = 0; };
  EventCount keys(*form.canvas, QEvent::KeyPress);
  list->SetFocus();
  QTest::keyClick(&NativeOf(*list), Qt::Key_Return);
  EXPECT_EQ(keys.count, 1);
  combo->SetFocus();
  QTest::keyClick(&NativeOf(*combo), Qt::Key_Return);
  EXPECT_EQ(keys.count, 2);
  QTest::keyClick(&NativeOf(*combo), Qt::Key_Down);
  EXPECT_EQ(keys.count, 2);
}

TEST(Focus, FiresEventsWhenItMovesBetweenWidgets) {
  Form form;
  const Ref<Widget> a = form.AddAt(0, u"vb.textbox", u"a");
  const Ref<Widget> b = form.AddAt(1, u"CardwrightCtrl.MultilineTextBox", u"b");
  Listener first, second;
  a->SetListener(&first);
  b->SetListener(&second);
  form.Show();  // which gives the focus to the first widget
  EXPECT_EQ(first.Take(), "got");
  b->SetFocus();
  EXPECT_EQ(first.Take(), "lost");
  EXPECT_EQ(second.Take(), "got");
}

TEST(Focus, FiresNoEventWhileAnotherWindowIsActive) {
  Form form;
  const Ref<Widget> a = form.AddAt(0, u"vb.textbox", u"a");
  Listener listener;
  a->SetListener(&listener);
  form.Show();
  EXPECT_EQ(listener.Take(), "got");
  {
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_FALSE(NativeOf(*a).hasFocus());
  }
  form.window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form.window));
  ASSERT_TRUE(NativeOf(*a).hasFocus());
  EXPECT_EQ(listener.Take(), "");
}

TEST(Focus, FiresLostFocusLateWhenItReturnsToAnotherWidget) {
  Form form;
  const Ref<Widget> a = form.AddAt(0, u"vb.textbox", u"a");
  const Ref<Widget> b = form.AddAt(1, u"vb.textbox", u"b");
  form.Show();
  Listener first, second;
  a->SetListener(&first);
  b->SetListener(&second);
  a->SetFocus();
  first.Take();
  {
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    b->SetFocus();  // in the window that is not active
  }
  form.window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form.window));
  EXPECT_EQ(first.Take(), "lost");
  EXPECT_EQ(second.Take(), "got");
}

TEST(Focus, FiresNoEventWhenAComboOpensItsList) {
  Form form;
  const Ref<ComboWidget> combo = form.AddAt<ComboWidget>(0, u"vb.combobox", u"c");
  combo->AddItem(u"one");
  Listener listener;
  combo->SetListener(&listener);
  form.Show();
  EXPECT_EQ(listener.Take(), "got");
  NativeAs<QComboBox>(*combo).showPopup();
  QCoreApplication::processEvents();
  NativeAs<QComboBox>(*combo).hidePopup();
  QCoreApplication::processEvents();
  EXPECT_EQ(listener.Take(), "");
}

TEST(Focus, MovesByTabInTheOrderOfCreation) {
  Form form;
  const Ref<Widget> a = form.AddAt(3, u"vb.textbox", u"a");
  const Ref<Widget> frame = form.Add(u"vb.frame", u"f");
  frame->Move(200, 0, 100, 200);
  const Ref<Widget> b = form.AddAt(0, u"vb.combobox", u"b");
  const Ref<Widget> c = form.Add(u"vb.checkbox", u"c", frame.get());
  form.Add(u"vb.label", u"label");
  const Ref<Widget> d = form.AddAt(2, u"CardwrightCtrl.MultilineTextBox", u"d");
  const Ref<Widget> e = form.AddAt(1, u"MSComctlLib.ListViewCtrl.2", u"e");
  const Ref<Widget> f = form.Add(u"vb.commandbutton", u"g", frame.get());
  form.Show();
  a->SetFocus();
  for (const Ref<Widget>& next : {b, c, d, e, f, a}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &NativeOf(*next)) << next->Name().ToUtf8();
  }
}

TEST(Focus, KeepsItsOrderWhenTheCanvasMovesIntoAnotherWindow) {
  QWidget window;
  auto* canvas = new QWidget;
  QtSurface surface(*canvas);
  const Ref<Widget> a = surface.Add(u"vb.textbox", u"a", nullptr);
  const Ref<Widget> b = surface.Add(u"vb.textbox", u"b", nullptr);
  const Ref<Widget> c = surface.Add(u"vb.textbox", u"c", nullptr);
  for (const Ref<Widget>& widget : {a, b, c}) widget->SetVisible(true);
  canvas->setParent(&window);
  canvas->show();
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  a->SetFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &NativeOf(*b));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &NativeOf(*c));
}

TEST(ContextMenu, StaysClosedAfterAMouseDownHandlerDisabledTheWidget) {
  Form form;
  const Ref<Widget> box = form.AddAt(0, u"vb.textbox", u"a");
  form.Show();
  int menus = 0;
  NativeOf(*box).setContextMenuPolicy(Qt::CustomContextMenu);
  QObject::connect(&NativeOf(*box), &QWidget::customContextMenuRequested, [&] { ++menus; });
  Listener listener;
  box->SetListener(&listener);
  listener.onMouseDown = [&] {
    box->SetEnabled(false);
    box->SetEnabled(true);
  };
  QTest::mouseClick(form.window.windowHandle(), Qt::RightButton, {}, QPoint(20, 20));
  EXPECT_EQ(menus, 0);

  listener.onMouseDown = {};
  QTest::mouseClick(form.window.windowHandle(), Qt::RightButton, {}, QPoint(20, 20));
  EXPECT_EQ(menus, 1);
}

}  // namespace cardwright::qt
