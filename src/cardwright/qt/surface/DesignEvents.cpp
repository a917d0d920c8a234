// SPDX-License-Identifier: MIT
// The events that QtDesignSurface passes to its listener, and the mouse.
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/surface/QtDesignSurface.h"
#include "cardwright/qt/values/Keys.h"

namespace cardwright::qt {

namespace {

constexpr int kPollInterval = 10;  // milliseconds between two looks at a mouse that rests
constexpr int kCursorHeight = 32;
constexpr int kFramePollInterval = 20;  // milliseconds between two looks for a window's frame
constexpr int kFrameTries = 25;

/// The key's own event, or the other key for it, of which not every system makes one.
bool IsMenuKey(const QEvent& event) {
  if (event.type() == QEvent::ContextMenu)
    return static_cast<const QContextMenuEvent&>(event).reason() == QContextMenuEvent::Keyboard;
  const auto& key = static_cast<const QKeyEvent&>(event);
  return key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier;
}

}  // namespace

template <class Call>
bool QtDesignSurface::Notify(Call&& call) {
  if (!m_Listener) return true;
  const QPointer<QObject> self(this);
  const SurfaceState::Handling handling(*m_State);
  BestEffort([&] { call(*m_Listener); });
  return !self.isNull();
}

bool QtDesignSurface::eventFilter(QObject* target, QEvent* event) {
  if (target == m_DragWindow) {
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonRelease)
      m_State->NoteCursor(static_cast<const QMouseEvent&>(*event));
    return false;
  }
  if (event->type() == QEvent::KeyPress && target == m_Watched) {
    if (OnKey(static_cast<QKeyEvent&>(*event))) return true;
    if (IsMenuKey(*event)) {
      Q_EMIT MenuKeyPressed();
      return true;
    }
  }
  return target == m_Surface.Native() && OnCanvasEvent(*event);
}

bool QtDesignSurface::OnCanvasEvent(QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
      if (!m_Surface.Canvas().isEnabled()) return false;  // a host has switched the designer off
      event.accept();  // before the listener is called, which may end the surface
      OnMouse(static_cast<QMouseEvent&>(event));
      return true;
    case QEvent::ContextMenu:  // the surface has a menu of its own
      event.accept();
      if (IsMenuKey(event)) Q_EMIT MenuKeyPressed();
      return true;
    case QEvent::Resize: NotifyResize(); return false;
    case QEvent::Show:
      m_AwaitsFrame = true;
      AwaitFrame(kFrameTries);
      return false;
    case QEvent::Paint: PaintGrid(static_cast<const QPaintEvent&>(event).rect()); return false;
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
    case QEvent::WindowBlocked: m_IsPressLost = true; return false;
    default: return false;
  }
}

void QtDesignSurface::OnMouse(QMouseEvent& event) {
  m_State->NoteCursor(event);
  const float x = PixelsToScale(static_cast<float>(event.position().x()), Scale());
  const float y = PixelsToScale(static_cast<float>(event.position().y()), Scale());
  const int shift = ShiftKeys(event.modifiers());
  const int button = MouseButtons(event.button());
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      m_IsPressed = event.button() == Qt::LeftButton;
      Notify([&](WidgetListener& l) { l.OnMouseDown(button, shift, x, y); });
      break;
    case QEvent::MouseButtonDblClick: m_IsPressed = false; break;  // as on the widgets
    case QEvent::MouseMove:
      Notify([&](WidgetListener& l) { l.OnMouseMove(MouseButtons(event.buttons()), shift, x, y); });
      break;
    default: OnRelease(event, x, y);
  }
}

void QtDesignSurface::OnRelease(const QMouseEvent& event, float x, float y) {
  const bool isLeft = event.button() == Qt::LeftButton;
  const bool isInside = m_Surface.Canvas().rect().contains(event.position().toPoint());
  const bool isClick = isLeft && m_IsPressed && isInside;
  if (isLeft) m_IsPressed = false;
  const int shift = ShiftKeys(event.modifiers());
  const int button = MouseButtons(event.button());
  if (!Notify([&](WidgetListener& l) { l.OnMouseUp(button, shift, x, y); })) return;
  if (isClick) Notify([](WidgetListener& l) { l.OnClick(); });
}

// Before the widget that has the focus. True where the key is dropped.
bool QtDesignSurface::OnKey(QKeyEvent& event) {
  int code = VirtualKey(event);
  int shift = ShiftKeys(event.modifiers());
  if (!Notify([&](WidgetListener& listener) { listener.OnKeyDown(code, shift); })) return true;
  return code == 0;
}

// A filter that is put on last is asked first. The canvas has this one anyway, and once only.
void QtDesignSurface::WatchFocus(QWidget* focused) {
  const QWidget* canvas = m_Surface.Native();
  if (m_Watched && m_Watched != canvas) m_Watched->removeEventFilter(this);
  const bool isOurs = canvas && focused && (focused == canvas || canvas->isAncestorOf(focused));
  m_Watched = isOurs ? focused : nullptr;
  if (m_Watched && m_Watched != canvas) m_Watched->installEventFilter(this);
}

// A form's size is the outer one: a frame that appears or goes changes it as well, unless the size that was
// asked for includes it.
void QtDesignSurface::NotifyResize() {
  const QWidget* canvas = m_Surface.Native();
  if (!canvas) return;
  const FrameSize frame = HostFrame();
  const bool isSameOutside = frame == m_NotifiedFrame || canvas->size() == m_UnframedSize;
  if (canvas->size() == m_NotifiedSize && isSameOutside) return;
  m_NotifiedSize = canvas->size();
  m_NotifiedFrame = frame;
  Notify([](WidgetListener& listener) { listener.OnResize(); });
}

// A window gets its frame when it is shown, on some systems a little later, and some never get one. A form
// that was given its outer size before leaves the frame its part then.
void QtDesignSurface::AwaitFrame(int tries) {
  const QWidget* canvas = m_Surface.Native();
  if (!canvas) return;
  if (!IsFramed() && tries > 0) {
    QTimer::singleShot(kFramePollInterval, this, [this, tries] { AwaitFrame(tries - 1); });
    return;
  }
  m_AwaitsFrame = false;
  if (std::exchange(m_UnframedSize, QSize()) != canvas->size()) return NotifyResize();
  const FrameSize frame = HostFrame();
  const auto less = [this](float size, float part) {
    return std::max(size - PixelsToScale(part, Scale()), 0.0F);
  };
  BestEffort([&] { Resize(less(Width(), frame.width), less(Height(), frame.height)); });
}

bool QtDesignSurface::IsFramed() const {
  const FrameSize frame = HostFrame();
  return frame.width > 0 || frame.height > 0;
}

void QtDesignSurface::PaintGrid(const QRect& area) {
  const QWidget& canvas = m_Surface.Canvas();
  QPainter painter(&m_Surface.Canvas());
  m_Grid.Paint(painter, area, canvas.palette().color(canvas.backgroundRole()));
}

ScreenPoint QtDesignSurface::CursorPosition() const {
  m_PolledCursor = m_State->cursor;
  return {m_PolledCursor.x(), m_PolledCursor.y()};
}

// A fast drag can be over before it is polled: the button then counts as down until its last position has
// been read.
bool QtDesignSurface::IsLeftButtonDown() const {
  const QWidget* canvas = m_Surface.Native();
  if (!canvas || !canvas->isVisible() || m_IsPressLost) return false;
  return QGuiApplication::mouseButtons().testFlag(Qt::LeftButton) || m_PolledCursor != m_State->cursor;
}

// The toolkit does not know the size of a cursor; this is that of the usual theme.
int QtDesignSurface::CursorHeight() const { return kCursorHeight; }

// The toolkit keeps sending the moves to the widget that was pressed, and to none once that one is hidden:
// they are taken from the window, which gets them all.
void QtDesignSurface::ReleaseMouse() {
  m_IsPressed = false;
  m_IsPressLost = false;
  const QWidget& canvas = m_Surface.Canvas();
  const QWidget* native = canvas.windowHandle() ? &canvas : canvas.nativeParentWidget();
  WatchDragIn(native ? native->windowHandle() : nullptr);
}

void QtDesignSurface::WatchDragIn(QWindow* window) {
  if (m_DragWindow) m_DragWindow->removeEventFilter(this);
  m_DragWindow = window;
  if (window) window->installEventFilter(this);
}

// The timer wakes the loop where nothing else does. The surface may be gone afterwards.
void QtDesignSurface::Yield() {
  QTimer waker;
  waker.start(kPollInterval);
  QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

}  // namespace cardwright::qt
