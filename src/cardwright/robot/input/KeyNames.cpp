// SPDX-License-Identifier: MIT
#include <array>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/robot/input/Keyboard.h"

namespace cardwright::robot {
namespace {

struct NamedKey {
  std::u16string_view name;
  int key;
  char16_t types = 0;  ///< the text that the key types without modifiers
};

constexpr std::array kKeys = {
    NamedKey{u"Enter", Qt::Key_Return, u'\r'},
    NamedKey{u"Return", Qt::Key_Return, u'\r'},
    NamedKey{u"Esc", Qt::Key_Escape, u'\x1B'},
    NamedKey{u"Escape", Qt::Key_Escape, u'\x1B'},
    NamedKey{u"Tab", Qt::Key_Tab, u'\t'},
    NamedKey{u"Backtab", Qt::Key_Backtab},
    NamedKey{u"Space", Qt::Key_Space, u' '},
    NamedKey{u"Backspace", Qt::Key_Backspace, u'\b'},
    NamedKey{u"Delete", Qt::Key_Delete, u'\x7F'},
    NamedKey{u"Del", Qt::Key_Delete, u'\x7F'},
    NamedKey{u"Insert", Qt::Key_Insert},
    NamedKey{u"Ins", Qt::Key_Insert},
    NamedKey{u"Home", Qt::Key_Home},
    NamedKey{u"End", Qt::Key_End},
    NamedKey{u"Left", Qt::Key_Left},
    NamedKey{u"Up", Qt::Key_Up},
    NamedKey{u"Right", Qt::Key_Right},
    NamedKey{u"Down", Qt::Key_Down},
    NamedKey{u"PageUp", Qt::Key_PageUp},
    NamedKey{u"PgUp", Qt::Key_PageUp},
    NamedKey{u"PageDown", Qt::Key_PageDown},
    NamedKey{u"PgDown", Qt::Key_PageDown},
    NamedKey{u"Menu", Qt::Key_Menu},
    NamedKey{u"Pause", Qt::Key_Pause},
};

constexpr int kLastFunctionKey = 24;

struct NamedModifier {
  std::u16string_view name;
  Qt::KeyboardModifier modifier;
};

constexpr std::array kModifiers = {
    NamedModifier{u"Ctrl", Qt::ControlModifier},
    NamedModifier{u"Shift", Qt::ShiftModifier},
    NamedModifier{u"Alt", Qt::AltModifier},
};

[[noreturn]] void RaiseUnknown(std::u16string_view name) {
  Raise(static_cast<int>(ErrorNumber::InvalidCall), Text(u"There is no key \"") + name + u"\"");
}

Qt::KeyboardModifier ModifierNamed(std::u16string_view name, std::u16string_view whole) {
  for (const NamedModifier& known : kModifiers)
    if (EqualsNoCase(known.name, name)) return known.modifier;
  RaiseUnknown(whole);
}

/// 0 where the name is no function key.
int FunctionKey(std::u16string_view name) {
  if (name.size() < 2 || name.size() > 3 || (name[0] != u'F' && name[0] != u'f')) return 0;
  int number = 0;
  for (const char16_t digit : name.substr(1)) {
    if (digit < u'0' || digit > u'9') return 0;
    number = number * 10 + (digit - u'0');
  }
  return number >= 1 && number <= kLastFunctionKey ? Qt::Key_F1 + number - 1 : 0;
}

QString TypedBy(QChar character, Qt::KeyboardModifiers modifiers) {
  if (modifiers.testFlag(Qt::AltModifier)) return {};
  if (modifiers.testFlag(Qt::ControlModifier))
    return character.isLetter() ? QString(QChar(character.toUpper().unicode() & 0x1F)) : QString();
  return modifiers.testFlag(Qt::ShiftModifier) ? QString(character.toUpper()) : QString(character.toLower());
}

void FindKey(KeyStroke& stroke, std::u16string_view name, std::u16string_view whole) {
  if (name.size() == 1) {
    const QChar character(name[0]);
    stroke.key = character.toUpper().unicode();
    stroke.text = TypedBy(character, stroke.modifiers);
    return;
  }
  stroke.key = FunctionKey(name);
  if (stroke.key != 0) return;
  for (const NamedKey& known : kKeys) {
    if (!EqualsNoCase(known.name, name)) continue;
    stroke.key = known.key;
    if (known.types != 0) stroke.text = QChar(known.types);
    return;
  }
  RaiseUnknown(whole);
}

}  // namespace

KeyStroke ParseStroke(std::u16string_view name) {
  KeyStroke stroke;
  std::u16string_view rest = name;
  for (std::size_t plus; (plus = rest.find(u'+')) != rest.npos && plus + 1 < rest.size();) {
    stroke.modifiers |= ModifierNamed(rest.substr(0, plus), name);
    rest.remove_prefix(plus + 1);
  }
  FindKey(stroke, rest, name);
  // The toolkit has a key code of its own for Shift+Tab.
  if (stroke.key == Qt::Key_Tab && stroke.modifiers.testFlag(Qt::ShiftModifier)) stroke.key = Qt::Key_Backtab;
  return stroke;
}

}  // namespace cardwright::robot
