// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QClipboard>

#include "qt/Form.h"

namespace cardwright::qt {

/// What the two text boxes have in common.
class EveryTextBox : public testing::TestWithParam<std::u16string_view> {
 protected:
  EveryTextBox() : box(form.AddAt<TextWidget>(0, GetParam(), u"a")) {
    form.Show();
    box->SetFocus();
    box->SetListener(&listener);
  }
  ~EveryTextBox() override { box->SetListener(nullptr); }
  QWidget& Native() { return NativeOf(*box); }

  Form form;
  Ref<TextWidget> box;
  Listener listener;
};
INSTANTIATE_TEST_SUITE_P(, EveryTextBox, testing::Values(u"vb.textbox", u"CardwrightCtrl.MultilineTextBox"));

TEST_P(EveryTextBox, FiresChangeForANewTextSetByCode) {
  box->SetDisplayText(u"abc");
  EXPECT_EQ(listener.Take(), "change");
  box->SetDisplayText(u"abc");
  EXPECT_EQ(listener.Take(), "");
  FontValues values;
  values.size = 20;
  box->GetFont()->Assign(values);
  box->SetForeColor(Rgb(255, 0, 0));
  box->SetLocked(true);
  EXPECT_EQ(listener.Take(), "");
}

TEST_P(EveryTextBox, ShowsTheStartOfATextThatCodeSets) {
  box->SetDisplayText(u"abc");
  EXPECT_EQ(box->SelStart(), 0);
  EXPECT_EQ(box->SelLength(), 0);
}

TEST_P(EveryTextBox, SelectsByStartAndLength) {
  box->SetDisplayText(u"abcdef");
  box->SetSelStart(2);
  box->SetSelLength(3);
  EXPECT_EQ(box->SelStart(), 2);
  EXPECT_EQ(box->SelLength(), 3);
  EXPECT_EQ(box->SelText(), u"cde");
  box->SetSelStart(1);
  EXPECT_EQ(box->SelLength(), 0);
  box->SetSelLength(100);
  EXPECT_EQ(box->SelText(), u"bcdef");
  box->SetSelLength(0);
  EXPECT_EQ(box->SelText(), u"");
  box->SetSelStart(100);
  EXPECT_EQ(box->SelStart(), 6);
  EXPECT_EQ(ErrorOf([&] { box->SetSelStart(-1); }), 380);
  EXPECT_EQ(ErrorOf([&] { box->SetSelLength(-1); }), 380);
}

TEST_P(EveryTextBox, ReplacesTheSelection) {
  box->SetDisplayText(u"abcdef");
  box->SetSelStart(2);
  box->SetSelLength(3);
  listener.Take();
  box->SetSelText(u"-");
  EXPECT_EQ(box->DisplayText(), u"ab-f");
  EXPECT_EQ(box->SelStart(), 3);
  EXPECT_EQ(listener.Take(), "change");
  box->SetSelText(u"+");
  EXPECT_EQ(box->DisplayText(), u"ab-+f");
}

TEST_P(EveryTextBox, HoldsTypedAndPastedTextToItsLimit) {
  EXPECT_EQ(box->MaxLength(), 0);
  box->SetMaxLength(3);
  EXPECT_EQ(box->MaxLength(), 3);
  QTest::keyClicks(&Native(), "abcd");
  EXPECT_EQ(box->DisplayText(), u"abc");
  box->SetSelStart(1);
  box->SetSelLength(1);
  QApplication::clipboard()->setText("xyz");
  QTest::keyClick(&Native(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(box->DisplayText(), u"axc");
  QTest::keyClick(&Native(), Qt::Key_Backspace);
  QTest::keyClicks(&Native(), "yz");
  EXPECT_EQ(box->DisplayText(), u"ayc");
  box->SetDisplayText(u"12345");
  EXPECT_EQ(box->DisplayText(), u"123");
  box->SetMaxLength(0);
  box->SetDisplayText(u"12345");
  EXPECT_EQ(box->DisplayText(), u"12345");
  EXPECT_EQ(ErrorOf([&] { box->SetMaxLength(-1); }), 380);
}

TEST_P(EveryTextBox, KeepsALongerTextThatIsThereWhenALimitComes) {
  box->SetDisplayText(u"12345");
  listener.Take();
  box->SetMaxLength(3);
  EXPECT_EQ(box->DisplayText(), u"12345");
  EXPECT_EQ(listener.Take(), "");
  box->SetSelStart(5);
  QTest::keyClicks(&Native(), "6");
  EXPECT_EQ(box->DisplayText(), u"12345");
  box->SetSelStart(4);
  for (int i = 0; i < 3; ++i) QTest::keyClick(&Native(), Qt::Key_Backspace);
  QTest::keyClicks(&Native(), "789");
  EXPECT_EQ(box->DisplayText(), u"175");
  EXPECT_EQ(box->SelStart(), 2);
}

TEST_P(EveryTextBox, PastesPastTheKeyFilter) {
  listener.onKeyPress = [](char16_t& key) { key = 0; };
  QApplication::clipboard()->setText("abc");
  QTest::keyClick(&Native(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(box->DisplayText(), u"abc");
}

TEST_P(EveryTextBox, ChangesWithinItsChange) {
  listener.onChange = [&] {
    if (box->DisplayText() != u"done") box->SetDisplayText(u"done");
  };
  QTest::keyClicks(&Native(), "a");
  EXPECT_EQ(box->DisplayText(), u"done");
}

TEST(TextBox, KeepsLineBreaksThatItCannotShow) {
  Form form;
  const Ref<Widget> box = form.Add(u"vb.textbox", u"a");
  box->SetDisplayText(u"one\r\ntwo");
  EXPECT_EQ(box->DisplayText(), u"one\r\ntwo");
}

class Multiline : public testing::Test {
 protected:
  Form form;
  Ref<TextWidget> box = form.AddAt<TextWidget>(0, u"CardwrightCtrl.MultilineTextBox", u"a");
};

TEST_F(Multiline, EndsLinesWithCrLfWhateverItWasGiven) {
  const struct {
    const char16_t* set;
    const char16_t* got;
  } cases[] = {{u"a\nb", u"a\r\nb"},   {u"a\rb", u"a\r\nb"},
               {u"a\r\nb", u"a\r\nb"}, {u"a\n\r\n\rb", u"a\r\n\r\n\r\nb"},
               {u"\r\n", u"\r\n"},     {u"a\u00A0b\tc", u"a\u00A0b\tc"}};
  for (const auto& c : cases) {
    box->SetDisplayText(c.set);
    EXPECT_EQ(box->DisplayText(), c.got);
  }
}

TEST_F(Multiline, CountsALineEndAsTwoCharacters) {
  box->SetDisplayText(u"ab\ncd\nef");
  box->SetSelStart(4);
  EXPECT_EQ(box->SelStart(), 4);
  box->SetSelLength(4);
  EXPECT_EQ(box->SelText(), u"cd\r\n");
  EXPECT_EQ(box->SelLength(), 4);
  box->SetSelStart(3);  // inside a line end
  EXPECT_EQ(box->SelStart(), 2);
  box->SetSelStart(99);
  EXPECT_EQ(box->SelStart(), 10);
  box->SetSelText(u"\rx");
  EXPECT_EQ(box->DisplayText(), u"ab\r\ncd\r\nef\r\nx");
  box->SetSelStart(0);
  box->SetSelLength(std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(box->SelLength(), 13);
}

TEST_F(Multiline, CountsLineEndsAgainstTheLimit) {
  form.Show();
  box->SetFocus();
  box->SetMaxLength(4);
  QTest::keyClicks(&NativeOf(*box), "abc");
  QTest::keyClick(&NativeOf(*box), Qt::Key_Return);
  EXPECT_EQ(box->DisplayText(), u"abc");
  QTest::keyClick(&NativeOf(*box), Qt::Key_Backspace);
  QTest::keyClick(&NativeOf(*box), Qt::Key_Return);
  EXPECT_EQ(box->DisplayText(), u"ab\r\n");
  box->SetDisplayText(u"abc\nd");
  EXPECT_EQ(box->DisplayText(), u"abc");
  box->SetSelStart(0);
  QInputMethodEvent event;
  event.setCommitString("12");
  QCoreApplication::sendEvent(&NativeOf(*box), &event);
  EXPECT_EQ(box->DisplayText(), u"1abc");
}

}  // namespace cardwright::qt
