// SPDX-License-Identifier: MIT
#include "cardwright/robot/input/Keyboard.h"

#include <QApplication>
#include <QPointer>
#include <QWindow>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/values/Keys.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/robot/input/EventProcessing.h"
#include "cardwright/robot/input/PlatformInput.h"

namespace cardwright::robot {
namespace {

bool HasFocus(const QWidget& widget) {
  const QWidget* const focused = QApplication::focusWidget();
  return focused && (focused == &widget || widget.isAncestorOf(focused));
}

/// Detects that a widget received the focus, even if its handlers pass it on at once.
class FocusObserver final : public QObject {
 public:
  explicit FocusObserver(QWidget& widget) : m_Widget(&widget) { qApp->installEventFilter(this); }

  bool HasReceivedFocus() const noexcept { return m_HasReceivedFocus; }

 protected:
  bool eventFilter(QObject* /*target*/, QEvent* event) override {
    if (event->type() == QEvent::FocusIn && m_Widget && HasFocus(*m_Widget)) m_HasReceivedFocus = true;
    return false;
  }

 private:
  QPointer<QWidget> m_Widget;
  bool m_HasReceivedFocus = false;
};

bool TakesFocus(const QWidget& widget) {
  return widget.isEnabled() && widget.isVisible() && (widget.focusPolicy() & Qt::StrongFocus) != 0;
}

void Activate(QWidget& widget) {
  QWidget& top = *widget.window();
  if (top.isActiveWindow()) return;
  top.activateWindow();
  ProcessEvents();
}

void SendStroke(QWidget& widget, const KeyStroke& stroke) {
  QWidget* const popup = QApplication::activePopupWidget();
  const QPointer<QWindow> window = (popup ? popup : widget.window())->windowHandle();
  if (!window)
    Raise(static_cast<int>(ErrorNumber::InvalidCall),
          qt::FromQString(widget.objectName()) + u": the widget is not on the screen");
  SendKey(*window, QEvent::KeyPress, stroke.key, stroke.modifiers, stroke.text);
  if (window) SendKey(*window, QEvent::KeyRelease, stroke.key, stroke.modifiers, stroke.text);
}

KeyStroke StrokeOf(QStringView character) {
  if (character == u"\n") return ParseStroke(u"Enter");
  if (character == u"\t") return ParseStroke(u"Tab");
  const QChar first = character.front();
  return {qt::KeyOfCharacter(first), first.isUpper() ? Qt::ShiftModifier : Qt::NoModifier,
          character.toString()};
}

}  // namespace

void GiveFocus(QWidget& widget) {
  Activate(widget);
  const Text name = qt::FromQString(widget.objectName());
  if (!HasFocus(widget)) {
    const FocusObserver watch(widget);
    widget.setFocus(Qt::OtherFocusReason);
    if (!watch.HasReceivedFocus())
      Raise(static_cast<int>(ErrorNumber::InvalidCall), name + u": the widget cannot take the focus");
  }
  ProcessEvents();
}

void PressKey(QWidget& widget, const KeyStroke& stroke) {
  if (!QApplication::activePopupWidget()) {
    Activate(widget);
    if (!HasFocus(widget) && TakesFocus(widget)) GiveFocus(widget);
  }
  SendStroke(widget, stroke);
  ProcessEvents();
}

void TypeText(QWidget& widget, std::u16string_view text) {
  GiveFocus(widget);
  const QString typed = qt::ToQString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  const QPointer<QWidget> target = &widget;
  for (qsizetype i = 0; i < typed.size();) {
    const bool isPair = typed[i].isHighSurrogate() && i + 1 < typed.size();
    const QString character = typed.mid(i, isPair ? 2 : 1);
    if (!target) Raise(ErrorNumber::ObjectNotSet);  // a script removed it during the typing
    SendStroke(*target, StrokeOf(character == u"\r" ? QStringLiteral("\n") : character));
    i += character.size();
  }
  ProcessEvents();
}

}  // namespace cardwright::robot
