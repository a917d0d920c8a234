// SPDX-License-Identifier: MIT
#include "cardwright/robot/input/Keyboard.h"

#include <gtest/gtest.h>

#include "cardwright/automation/Errors.h"
#include "robot/EventRecorder.h"

namespace cardwright::robot {
namespace {

struct Named {
  const char16_t* name;
  int key;
  Qt::KeyboardModifiers modifiers;
  const char* text;
};

TEST(KeyStrokes, ParseCommonNames) {
  const Named named[] = {
      {u"F3", Qt::Key_F3, Qt::NoModifier, ""},
      {u"Shift+F3", Qt::Key_F3, Qt::ShiftModifier, ""},
      {u"f24", Qt::Key_F24, Qt::NoModifier, ""},
      {u"Ctrl+I", Qt::Key_I, Qt::ControlModifier, "\t"},
      {u"ctrl+shift+END", Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier, ""},
      {u"Enter", Qt::Key_Return, Qt::NoModifier, "\r"},
      {u"Esc", Qt::Key_Escape, Qt::NoModifier, "\x1B"},
      {u"Delete", Qt::Key_Delete, Qt::NoModifier, "\x7F"},
      {u"Backspace", Qt::Key_Backspace, Qt::NoModifier, "\b"},
      {u"Down", Qt::Key_Down, Qt::NoModifier, ""},
      {u"PageUp", Qt::Key_PageUp, Qt::NoModifier, ""},
      {u"Shift+Tab", Qt::Key_Backtab, Qt::ShiftModifier, "\t"},
      {u"a", Qt::Key_A, Qt::NoModifier, "a"},
      {u"Shift+a", Qt::Key_A, Qt::ShiftModifier, "A"},
      {u"Alt+x", Qt::Key_X, Qt::AltModifier, ""},
      {u"+", Qt::Key_Plus, Qt::NoModifier, "+"},
      {u"Ctrl++", Qt::Key_Plus, Qt::ControlModifier, ""},
  };
  for (const Named& one : named) {
    const KeyStroke stroke = ParseStroke(one.name);
    EXPECT_EQ(stroke.key, one.key) << Text(one.name).ToUtf8();
    EXPECT_EQ(stroke.modifiers, one.modifiers) << Text(one.name).ToUtf8();
    EXPECT_EQ(stroke.text.toStdString(), one.text) << Text(one.name).ToUtf8();
  }
}

TEST(KeyStrokes, FailForUnknownKeys) {
  for (const char16_t* name : {u"", u"F0", u"F25", u"F1x", u"Entre", u"Hyper+X", u"Ctrl+", u"+a", u"Ctrl"})
    EXPECT_THROW(ParseStroke(name), Error) << Text(name).ToUtf8();
}

TEST(KeyboardTest, TypesEveryCharacter) {
  EventRecorder window;
  TypeText(window, u"aÈ\r\n\U0001F600");
  EXPECT_EQ(window.Take(), "key65[a] key200[È] key16777220[\r] key33554431[\U0001F600] ");
}

TEST(KeyboardTest, FailsWhereNothingTakesTheFocus) {
  EventRecorder window;
  window.setFocusPolicy(Qt::NoFocus);
  window.clearFocus();
  QWidget deaf(&window);
  deaf.setEnabled(false);
  deaf.show();
  EXPECT_THROW(TypeText(deaf, u"a"), Error);
}

}  // namespace
}  // namespace cardwright::robot
