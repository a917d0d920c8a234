// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "cardwright/automation/Text.h"

namespace cardwright::robot {

/// A key with the modifiers held.
struct KeyStroke {
  int key = 0;
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
  QString text;  ///< the text that it types
};

/// Parses a key stroke such as "Ctrl+I" or "Shift+F3". Error 5 with a description for an unknown one.
KeyStroke ParseStroke(std::u16string_view name);

/// Gives a widget the focus. Error 5 with a description where it cannot have it.
void GiveFocus(QWidget& widget);
/// Presses and releases a key. The widget gets the focus first if it accepts it. While a list or a menu is
/// open, that gets the key.
void PressKey(QWidget& widget, const KeyStroke& stroke);
/// Gives the widget the focus and presses a key for each character. A line end, of one or two characters, is
/// Enter.
void TypeText(QWidget& widget, std::u16string_view text);

}  // namespace cardwright::robot
