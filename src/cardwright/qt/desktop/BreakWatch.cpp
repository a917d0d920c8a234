#include "cardwright/qt/desktop/BreakWatch.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace cardwright::qt {
namespace {

// What X11 makes of Ctrl+Pause; the toolkit has no name for it.
constexpr quint32 kBreakSymbol = 0xFF6B;

bool IsBreak(const QKeyEvent& key) {
  return !key.isAutoRepeat() &&
         (key.key() == Qt::Key_Cancel || key.nativeVirtualKey() == kBreakSymbol ||
          (key.key() == Qt::Key_Pause && key.modifiers().testFlag(Qt::ControlModifier)));
}

bool Waits(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::Close:
    case QEvent::Timer: return true;
    default: return false;
  }
}

}  // namespace

BreakWatch::BreakWatch() { QCoreApplication::instance()->installEventFilter(this); }

bool BreakWatch::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::KeyPress && IsBreak(static_cast<QKeyEvent&>(*event))) m_WasPressed = true;
  if (!Waits(event->type())) return false;
  // The window system asks again whoever would close a window that was not closed.
  event->setAccepted(event->type() != QEvent::Close);
  return true;
}

}  // namespace cardwright::qt
