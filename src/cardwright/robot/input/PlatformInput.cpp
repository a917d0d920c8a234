// SPDX-License-Identifier: MIT
#include "cardwright/robot/input/PlatformInput.h"

#include <QWindow>

// The toolkit exports these for test libraries: the entry points that platform plug-ins use, without private
// headers.
QT_BEGIN_NAMESPACE
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button, QEvent::Type type,
                                      Qt::KeyboardModifiers modifiers, int timestamp);
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key,
                                    Qt::KeyboardModifiers modifiers, const QString& text, bool autoRepeat,
                                    ushort count);
QT_END_NAMESPACE

namespace cardwright::robot {

void SendMouse(QWindow& window, const MouseInput& input) {
  qt_handleMouseEvent(&window, input.at, window.mapToGlobal(input.at), input.held, input.button, input.type,
                      input.modifiers, input.time);
}

void SendKey(QWindow& window, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers,
             const QString& text) {
  qt_handleKeyEvent(&window, type, key, modifiers, text, false, 1);
}

}  // namespace cardwright::robot
