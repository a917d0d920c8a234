#pragma once

#include <QWidget>

#include "cardwright/automation/Text.h"

namespace cardwright::robot {

/// One stroke: a key with the modifiers held.
struct KeyStroke {
  int key = 0;
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
  QString text;  ///< what the stroke types
};

/// A stroke by its name, "Ctrl+I" or "Shift+F3". Error 5 with a description for an unknown one.
KeyStroke ParseStroke(std::u16string_view name);

/// Gives a widget the focus. Error 5 with a description where it cannot have it.
void GiveFocus(QWidget& widget);
/// One stroke. The widget gets the focus first if it takes it; while a list or a menu is open the stroke is
/// for that one.
void PressKey(QWidget& widget, const KeyStroke& stroke);
/// Focus, then a stroke for each character; a line end, of one or two characters, is Enter.
void TypeText(QWidget& widget, std::u16string_view text);

}  // namespace cardwright::robot
