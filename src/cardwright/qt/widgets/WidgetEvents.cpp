// SPDX-License-Identifier: MIT
// The second half of WidgetCore: the toolkit's input events as events of its listener.
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

#include "cardwright/qt/values/Keys.h"
#include "cardwright/qt/widgets/WidgetCore.h"

namespace cardwright::qt {

bool WidgetCore::OnMouse(QWidget& target, QMouseEvent& event) {
  m_Place.state->NoteCursor(event);
  // A disabled widget lets the mouse through to its container.
  if (!m_Widget->isEnabled()) {
    event.ignore();
    return true;
  }
  const QPoint at = target.mapTo(m_Widget.data(), event.position().toPoint());
  const bool wasTold = m_HasParts && &target == m_Widget && m_Widget->childAt(at);
  const Ref<Widget> keepAlive(&Self());
  if (!wasTold) {
    NotifyMouse(target, event);
    NotifyClickOf(target, event, at);
  }
  if (m_Widget && !wasTold && !EndsHere(target, event)) return false;
  event.accept();
  return true;
}

void WidgetCore::NotifyClickOf(const QWidget& target, const QMouseEvent& event, QPoint at) {
  if (event.type() == QEvent::MouseButtonPress) {
    m_IsPressed = event.button() == Qt::LeftButton;
  } else if (event.type() == QEvent::MouseButtonDblClick) {
    m_IsPressed = false;  // the second press of a double click makes no second click
  } else if (event.type() == QEvent::MouseButtonRelease && event.button() == Qt::LeftButton) {
    const bool clicked = std::exchange(m_IsPressed, false) && m_Widget && m_Widget->rect().contains(at);
    const bool isDesigned = m_Place.state->isDesigned;
    const bool isOurs = m_Kind.click == ClickSource::MouseRelease && IsClickedBy(target);
    if (clicked && (isDesigned || isOurs)) NotifyClick();
  }
}

void WidgetCore::NotifyMouse(QWidget& target, const QMouseEvent& event) {
  const QPointF at = target.mapTo(m_Widget.data(), event.position());
  const ScaleMode mode = Scale();
  const float x = PixelsToScale(static_cast<float>(at.x()), mode);
  const float y = PixelsToScale(static_cast<float>(at.y()), mode);
  const int shift = ShiftKeys(event.modifiers());
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      m_DropsMenu = false;
      m_IsInMouseDown = true;
      Notify([&](WidgetListener& l) { l.OnMouseDown(MouseButtons(event.button()), shift, x, y); });
      m_IsInMouseDown = false;
      break;
    case QEvent::MouseButtonRelease:
      Notify([&](WidgetListener& l) { l.OnMouseUp(MouseButtons(event.button()), shift, x, y); });
      break;
    case QEvent::MouseMove:
      Notify([&](WidgetListener& l) { l.OnMouseMove(MouseButtons(event.buttons()), shift, x, y); });
      break;
    default: break;
  }
}

bool WidgetCore::EndsHere(const QWidget& target, const QMouseEvent& event) const {
  if (IsBlocked() || m_Place.state->isDesigned) return true;
  switch (m_Kind.mouse) {
    case MouseUse::None: return true;
    case MouseUse::LeftButton: {
      const bool isLeft = event.button() == Qt::LeftButton || event.buttons().testFlag(Qt::LeftButton);
      return &target == m_Widget && !isLeft;
    }
    case MouseUse::All: break;
  }
  return false;
}

bool WidgetCore::OnKey(QWidget& target, QKeyEvent& event) {
  // Tab moves between the fields and is nobody's key.
  if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) return false;
  if (&target == m_Widget && m_Widget->focusProxy()) return false;  // the part has been handled already
  const Ref<Widget> keepAlive(&Self());
  int code = VirtualKey(event);
  int shift = ShiftKeys(event.modifiers());
  Notify([&](WidgetListener& listener) { listener.OnKeyDown(code, shift); });
  if (!m_Widget) return true;
  if (m_Place.state->isDesigned) {
    event.ignore();  // on to the surface and its window
    return true;
  }
  if (code == 0 || IsBlocked()) return EndKey(event);
  return OnTyped(target, event);
}

bool WidgetCore::OnTyped(QWidget& target, QKeyEvent& event) {
  const QString typed = TypedText(event);
  if (typed.isEmpty()) return false;
  const QString kept = FilterTyped(typed);
  if (!m_Widget) return true;
  if (kept.isEmpty()) return EndKey(event);
  if (kept == typed) return false;
  QKeyEvent replaced(QEvent::KeyPress, KeyOfCharacter(kept.front()), Qt::NoModifier, kept);
  return Replay(target, replaced);
}

/// Drops a key. Enter and Esc go on to the form, which takes them as OK and Cancel, unless the widget would
/// have used them itself.
bool WidgetCore::EndKey(QKeyEvent& event) const {
  const bool isForForm = event.key() == Qt::Key_Escape || (IsEnter(event) && !TakesEnter());
  event.setAccepted(!isForForm);
  return true;
}

/// An input method commits text instead of keys: each character passes the same filter.
bool WidgetCore::OnInputMethod(QWidget& target, QInputMethodEvent& event) {
  if (event.commitString().isEmpty()) return false;
  if (IsBlocked() || !target.testAttribute(Qt::WA_InputMethodEnabled)) return true;
  const Ref<Widget> keepAlive(&Self());
  const QString kept = FilterTyped(event.commitString());
  if (!m_Widget) return true;
  if (kept == event.commitString()) return false;
  QInputMethodEvent replaced(event.preeditString(), event.attributes());
  replaced.setCommitString(kept, event.replacementStart(), event.replacementLength());
  return Replay(target, replaced);
}

QString WidgetCore::FilterTyped(const QString& text) {
  QString kept;
  for (const QChar character : text) {
    char16_t key = character.unicode();
    Notify([&](WidgetListener& listener) { listener.OnKeyPress(key); });
    if (key != 0) kept += QChar(key);
  }
  return kept;
}

bool WidgetCore::Replay(QWidget& target, QEvent& event) {
  m_IsReplaying = true;
  QCoreApplication::sendEvent(&target, &event);
  m_IsReplaying = false;
  return true;
}

/// Only moves between widgets are events for the listener. A popup or another window borrows the focus: the
/// widget that gets it back has no event, and where another widget gets it, the first one loses it now. True,
/// which hides the event from the widget, where a handler has moved the focus on, as the designer does: a
/// group box would take it back.
bool WidgetCore::OnFocusIn(QWidget& widget) {
  const QPointer<QWidget> target = &widget;
  SurfaceState& state = *m_Place.state;
  if (state.focused == this) return false;
  WidgetCore* before = std::exchange(state.focused, this);
  if (before) before->Notify([](WidgetListener& listener) { listener.OnLostFocus(); });
  if (state.focused == this) Notify([](WidgetListener& listener) { listener.OnGotFocus(); });
  return !target || !target->hasFocus();
}

void WidgetCore::OnFocusOut(Qt::FocusReason reason) {
  const bool isLent = reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason ||
                      reason == Qt::MenuBarFocusReason || QApplication::activePopupWidget();
  if (isLent) return;
  if (m_Place.state->focused != this) return;
  m_Place.state->focused = nullptr;
  Notify([](WidgetListener& listener) { listener.OnLostFocus(); });
}

}  // namespace cardwright::qt
