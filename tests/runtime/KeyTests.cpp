// SPDX-License-Identifier: MIT
// Keys and the focus in a form that is filled in, through the toolkit's own events.

#include <QKeyEvent>
#include <QLineEdit>

#include "runtime/FormTest.h"

namespace cardwright {
namespace {

class KeyTest : public FormTest {
 protected:
  explicit KeyTest(std::u16string_view locale = u"en-us") : FormTest(locale) {
    host->SetTheme({{"text", 0, 5, 0, ""}, {"whole", 1, 4, 0, ""}, {"real", 1, 8, 2, ""}});
    form->SetNewFeature(true);
  }
  void ReadFields(const std::string& more = {}) {
    ASSERT_TRUE(Read({{"TextBox", "text", "Attribute=text\r\n" + more},
                      {"TextBox", "whole", "Attribute=whole\r\n" + more},
                      {"TextBox", "real", "Attribute=real\r\n" + more},
                      {"textboxmultiline", "notes", "Attribute=real\r\n" + more},
                      {"ComboBox", "combo", "Attribute=real\r\nEditable=True\r\n" + more}}));
    Show();
    form->SetFeatureID("7");
    TakeEvents();
  }
  QWidget& EditOf(std::u16string_view name) {
    QWidget& native = Native(name);
    auto* inner = native.findChild<QLineEdit*>();
    return inner ? *inner : native;
  }
  /// Each character as a key press of its own.
  Text Type(std::u16string_view name, std::u16string_view characters) {
    QWidget& target = EditOf(name);
    target.setFocus();
    for (const char16_t each : characters) {
      QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(each)));
      QCoreApplication::sendEvent(&target, &press);
    }
    return WidgetOf(name).DisplayText();
  }
  Lines Press(QWidget& target, int key) {
    target.setFocus();
    QTest::keyClick(&target, static_cast<Qt::Key>(key));
    return TakeEvents();
  }
  std::string Focused() {
    const QWidget* focused = window.focusWidget();
    return focused ? focused->objectName().toStdString() : std::string();
  }
};

TEST_F(KeyTest, LetThroughWhatTheAttributeTakes) {
  ReadFields();
  EXPECT_EQ(Type(u"text", u"a.b,c-d"), u"a.b,c") << "five characters";
  EXPECT_EQ(Type(u"whole", u"1x2.3,-4567"), u"-123") << "four characters, and the sign moves to the front";
  EXPECT_EQ(Type(u"real", u"1.2.x3,4-"), u"-1.234");
  EXPECT_EQ(Type(u"combo", u"1.2.3"), u"1.2.3") << "a combo box is not asked for a separator it has";
  EXPECT_EQ(Type(u"notes", u"1a.5"), u"1.5");
  EXPECT_EQ(Type(u"text", u"\u00E8"), u"a.b,c") << "full";
}

TEST_F(KeyTest, SwitchTheSignWhereverTheCaretStands) {
  ReadFields();
  auto& whole = WidgetOf<TextWidget>(u"whole");
  Type(u"whole", u"12");
  whole.SetSelStart(1);
  EXPECT_EQ(Type(u"whole", u"-"), u"-12");
  EXPECT_EQ(whole.SelStart(), 2);
  EXPECT_EQ(Type(u"whole", u"-"), u"12");
  EXPECT_EQ(whole.SelStart(), 1);
  whole.SetSelStart(0);
  whole.SetSelLength(2);
  EXPECT_EQ(Type(u"whole", u"-"), u"-") << "the whole selection is overtyped";
}

TEST_F(KeyTest, RefuseTheSignWhereTheFormDoes) {
  ReadFields("MinusSignEnabled=False\r\n");
  EXPECT_EQ(Type(u"whole", u"-1-"), u"1");
}

class ItalianKeys : public KeyTest {
 protected:
  ItalianKeys() : KeyTest(u"it-it") {}
};

TEST_F(ItalianKeys, TurnAPointIntoTheComma) {
  ReadFields();
  EXPECT_EQ(Type(u"real", u"3.1.4,1"), u"3,141");
  EXPECT_EQ(Type(u"whole", u"3.1,4"), u"314");
}

TEST_F(KeyTest, EnterAndEscPressTheFixedButtons) {
  ReadFields();
  EXPECT_EQ(Press(Native(u"text"), Qt::Key_Return), Lines{"OkClick"});
  EXPECT_EQ(Press(Native(u"whole"), Qt::Key_Enter), Lines{"OkClick"});
  EXPECT_EQ(Press(EditOf(u"combo"), Qt::Key_Return), Lines{"OkClick"});
  EXPECT_EQ(Press(Native(u"real"), Qt::Key_Escape), Lines{"CancelClick"});
  EXPECT_EQ(Press(Native(u"notes"), Qt::Key_Escape), Lines{"CancelClick"});
}

TEST_F(KeyTest, EnterStaysInAFieldOfSeveralLines) {
  ReadFields();
  EXPECT_EQ(Press(Native(u"notes"), Qt::Key_Return), Lines{});
  EXPECT_EQ(WidgetOf(u"notes").DisplayText(), u"\r\n");
}

TEST_F(KeyTest, EnterPressesTheButtonThatHasTheFocus) {
  Read({{"CommandButton", "button", ""}}, {}, "VBScript\r\nSub button_OnClick()\r\nEnd Sub\r\n");
  Show();
  TakeEvents();
  EXPECT_EQ(Press(Native(u"button"), Qt::Key_Return), Lines{});
  EXPECT_TRUE(engine->HasRun("button_OnClick"));
  EXPECT_EQ(Press(Button("cmdCancel"), Qt::Key_Return), Lines{"CancelClick"});
  EXPECT_EQ(Press(Button("cmdOK"), Qt::Key_Space), Lines{"OkClick"});
  EXPECT_EQ(Press(Button("cmdOK"), Qt::Key_Escape), Lines{"CancelClick"});
}

TEST_F(KeyTest, EnterWithAModifierPressesNothing) {
  ReadFields();
  QTest::keyClick(&Native(u"text"), Qt::Key_Return, Qt::ControlModifier);
  QTest::keyClick(&Native(u"text"), Qt::Key_Escape, Qt::ShiftModifier);
  EXPECT_EQ(TakeEvents(), Lines{});
}

TEST_F(KeyTest, FocusBeginsInTheFirstFieldAndEndsAtTheButtons) {
  Read({{"Label", "label", ""},
        {"TextBox", "one", ""},
        {"Frame", "frame", ""},
        {"CheckBox", "inside", "Container=object_4\r\n"},
        {"TextBox", "two", ""}});
  Show();
  EXPECT_EQ(Focused(), "object_3");
  Lines order;
  for (int i = 0; i < 5; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    order.push_back(Focused());
  }
  EXPECT_EQ(order, (Lines{"object_5", "object_6", "cmdOK", "cmdCancel", "object_3"}));
}

TEST_F(KeyTest, FocusPassesOverWhatCannotTakeIt) {
  Read({{"TextBox", "off", ""}, {"TextBox", "hidden", ""}, {"TextBox", "on", ""}});
  WidgetOf(u"off").SetEnabled(false);
  WidgetOf(u"hidden").SetVisible(false);
  Show();
  EXPECT_EQ(Focused(), "object_4");
}

TEST_F(KeyTest, FocusStaysWhereAScriptPutIt) {
  Read({{"TextBox", "one", ""}, {"TextBox", "two", ""}});
  WidgetOf(u"two").SetFocus();
  Show();
  EXPECT_EQ(Focused(), "object_3");
}

}  // namespace
}  // namespace cardwright
