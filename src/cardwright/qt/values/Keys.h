// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <Qt>

class QKeyEvent;

namespace cardwright::qt {

/// The platform's key code of a key ("virtual key": 13 Enter, 37 to 40 the arrows, 46 Delete). Never 0: a key
/// without a code of its own gets 255, so that 0 can mean a key that was dropped.
int VirtualKey(const QKeyEvent& event);
/// Sum of ShiftKey values.
int ShiftKeys(Qt::KeyboardModifiers modifiers);
/// Sum of MouseButton values.
int MouseButtons(Qt::MouseButtons buttons);

/// The characters that a key press types: text, or the control characters that the platform counts as typed,
/// Backspace and Enter. Empty for every other key and for shortcuts.
QString TypedText(const QKeyEvent& event);
/// The key that types this character.
int KeyOfCharacter(QChar character);

/// Enter, of either key.
bool IsEnter(const QKeyEvent& event);

}  // namespace cardwright::qt
