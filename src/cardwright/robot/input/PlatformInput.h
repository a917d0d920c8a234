// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QPointF>
#include <QString>
#include <Qt>

class QWindow;

namespace cardwright::robot {

/// A mouse event as the window system would report it.
struct MouseInput {
  QEvent::Type type;
  QPointF at;  ///< in the window
  Qt::MouseButton button;
  Qt::MouseButtons held;  ///< after the event
  Qt::KeyboardModifiers modifiers;
  int time;  ///< in milliseconds; two presses in a short time are a double click
};

/// @name Input that takes the whole path through the toolkit, so that grabs, popups, modal windows, focus and
/// the state of buttons are as with a real device. The functions return when all handlers have returned.
/// @{
void SendMouse(QWindow& window, const MouseInput& input);
void SendKey(QWindow& window, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers,
             const QString& text);
/// @}

}  // namespace cardwright::robot
