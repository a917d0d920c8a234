// SPDX-License-Identifier: MIT
#include "cardwright/qt/values/Keys.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>

#include "cardwright/platform/WidgetListener.h"

namespace cardwright::qt {

namespace {

constexpr int kUnknownKey = 255;

struct KeyCode {
  int key;
  int code;
};

constexpr std::array kNamedKeys = {
    KeyCode{Qt::Key_Backspace, 8},    KeyCode{Qt::Key_Tab, 9},      KeyCode{Qt::Key_Backtab, 9},
    KeyCode{Qt::Key_Clear, 12},       KeyCode{Qt::Key_Return, 13},  KeyCode{Qt::Key_Enter, 13},
    KeyCode{Qt::Key_Shift, 16},       KeyCode{Qt::Key_Control, 17}, KeyCode{Qt::Key_Alt, 18},
    KeyCode{Qt::Key_AltGr, 18},       KeyCode{Qt::Key_Pause, 19},   KeyCode{Qt::Key_CapsLock, 20},
    KeyCode{Qt::Key_Escape, 27},      KeyCode{Qt::Key_Space, 32},   KeyCode{Qt::Key_PageUp, 33},
    KeyCode{Qt::Key_PageDown, 34},    KeyCode{Qt::Key_End, 35},     KeyCode{Qt::Key_Home, 36},
    KeyCode{Qt::Key_Left, 37},        KeyCode{Qt::Key_Up, 38},      KeyCode{Qt::Key_Right, 39},
    KeyCode{Qt::Key_Down, 40},        KeyCode{Qt::Key_Print, 44},   KeyCode{Qt::Key_Insert, 45},
    KeyCode{Qt::Key_Delete, 46},      KeyCode{Qt::Key_Help, 47},    KeyCode{Qt::Key_Super_L, 91},
    KeyCode{Qt::Key_Super_R, 92},     KeyCode{Qt::Key_Menu, 93},    KeyCode{Qt::Key_NumLock, 144},
    KeyCode{Qt::Key_ScrollLock, 145},
};

// Where these characters sit on the usual keyboard, shifted ones included.
constexpr std::array kCharacterKeys = {
    KeyCode{';', 186},  KeyCode{':', 186},  KeyCode{'=', 187}, KeyCode{'+', 187}, KeyCode{',', 188},
    KeyCode{'<', 188},  KeyCode{'-', 189},  KeyCode{'_', 189}, KeyCode{'.', 190}, KeyCode{'>', 190},
    KeyCode{'/', 191},  KeyCode{'?', 191},  KeyCode{'`', 192}, KeyCode{'~', 192}, KeyCode{'[', 219},
    KeyCode{'{', 219},  KeyCode{'\\', 220}, KeyCode{'|', 220}, KeyCode{']', 221}, KeyCode{'}', 221},
    KeyCode{'\'', 222}, KeyCode{'"', 222},  KeyCode{'!', '1'}, KeyCode{'@', '2'}, KeyCode{'#', '3'},
    KeyCode{'$', '4'},  KeyCode{'%', '5'},  KeyCode{'^', '6'}, KeyCode{'&', '7'}, KeyCode{'*', '8'},
    KeyCode{'(', '9'},  KeyCode{')', '0'},
};

constexpr std::array kKeypadKeys = {
    KeyCode{'*', 106}, KeyCode{'+', 107}, KeyCode{',', 108},
    KeyCode{'-', 109}, KeyCode{'.', 110}, KeyCode{'/', 111},
};

template <std::size_t N>
int Find(const std::array<KeyCode, N>& table, int key) {
  const auto found = std::find_if(table.begin(), table.end(), [&](const KeyCode& k) { return k.key == key; });
  return found == table.end() ? 0 : found->code;
}

int KeypadKey(int key) {
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return 96 + (key - Qt::Key_0);
  return Find(kKeypadKeys, key);
}

}  // namespace

int VirtualKey(const QKeyEvent& event) {
  const int key = event.key();
  if (event.modifiers().testFlag(Qt::KeypadModifier)) {
    if (const int code = KeypadKey(key)) return code;
  }
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return 112 + (key - Qt::Key_F1);
  if (const int code = Find(kNamedKeys, key)) return code;
  if (const int code = Find(kCharacterKeys, key)) return code;
  return kUnknownKey;
}

int ShiftKeys(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? ShiftKey::Shift : 0) |
         (modifiers.testFlag(Qt::ControlModifier) ? ShiftKey::Ctrl : 0) |
         (modifiers.testFlag(Qt::AltModifier) ? ShiftKey::Alt : 0);
}

int MouseButtons(Qt::MouseButtons buttons) {
  return (buttons.testFlag(Qt::LeftButton) ? MouseButton::Left : 0) |
         (buttons.testFlag(Qt::RightButton) ? MouseButton::Right : 0) |
         (buttons.testFlag(Qt::MiddleButton) ? MouseButton::Middle : 0);
}

QString TypedText(const QKeyEvent& event) {
  if (IsEnter(event)) return QStringLiteral("\r");
  if (event.key() == Qt::Key_Backspace) return QStringLiteral("\b");
  // Ctrl and Alt together are the third level of some keyboards, which types; Ctrl alone is a shortcut.
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  if (modifiers.testFlag(Qt::ControlModifier) && !modifiers.testFlag(Qt::AltModifier)) return {};
  const QString text = event.text();
  const bool types = std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u' ' && c != u'\x7F'; });
  return types ? text : QString();
}

int KeyOfCharacter(QChar character) {
  switch (character.unicode()) {
    case u'\b': return Qt::Key_Backspace;
    case u'\r': return Qt::Key_Return;
    default: return character.unicode() < 0x100 ? character.toUpper().unicode() : int{Qt::Key_unknown};
  }
}

bool IsEnter(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

}  // namespace cardwright::qt
