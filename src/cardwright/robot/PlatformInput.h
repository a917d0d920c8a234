#pragma once

#include <QEvent>
#include <QPointF>
#include <QString>
#include <Qt>

class QWindow;

namespace cardwright::robot {

/// One event of the mouse as the window system would tell it.
struct MouseInput {
  QEvent::Type type;
  QPointF at;  ///< in the window
  Qt::MouseButton button;
  Qt::MouseButtons held;  ///< behind the event
  Qt::KeyboardModifiers modifiers;
  int time;  ///< milliseconds; two presses that lie close together are a double click
};

/// @name Input that goes the whole way through the toolkit, so that grabs, popups, modal windows, focus and
/// the state of buttons are as with a real device. Returns when everything that it set off has returned.
/// @{
void SendMouse(QWindow& window, const MouseInput& input);
void SendKey(QWindow& window, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers,
             const QString& text);
/// @}

}  // namespace cardwright::robot
