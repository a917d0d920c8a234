// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include "cardwright/platform/Font.h"
#include "cardwright/platform/Scale.h"
#include "cardwright/platform/Widget.h"
#include "cardwright/qt/widgets/SurfaceState.h"
#include "cardwright/qt/widgets/WidgetKind.h"

class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace cardwright::qt {

/// Where a new widget belongs.
struct WidgetPlace {
  Ref<SurfaceState> state;
  Text name;
  Ref<Widget> container;  ///< null for the surface itself
  QWidget* parent;
};

/// The part of a widget that is the same for all kinds: geometry, colours, font, flags and the translation of
/// the toolkit's events. Belongs to a QWidget that it did not make; every operation raises error 91 once that
/// one is gone.
class WidgetCore : public QObject, private Font::User {
 public:
  ~WidgetCore() override;

  /// The toolkit's widget; null once it is gone.
  QWidget* Native() const noexcept;
  /// The adapter of a toolkit widget or of a part that it watches, or null where it is none of this library's
  /// run-time widgets.
  static WidgetCore* Of(QWidget& widget);
  virtual Widget& Self() = 0;
  /// A part of the widget that a user knows as such, "button" or "edit" in any case; null where it has no
  /// such part.
  virtual QWidget* Part(std::u16string_view /*name*/) const { return nullptr; }

  /// Takes the toolkit's widget off the surface.
  void Detach();
  void ConvertGeometry(ScaleMode from, ScaleMode to);
  /// Moves the widget into another container, null for the surface itself, in front of its other widgets. The
  /// geometry keeps its numbers.
  void Reparent(Ref<Widget> container, QWidget& parent);

 protected:
  WidgetCore(const WidgetKind& kind, WidgetPlace place);
  /// Called once, by the kind's constructor, with the widget it made as a child of the place's parent.
  void Adopt(QWidget& widget);
  /// Watches a part of the widget that gets mouse events of its own. What the part leaves unused comes on to
  /// the widget and ends there.
  void WatchPart(QWidget& part);

  /// A field of the adapter as an operation of its interface reaches it: error 91 where the toolkit's widget
  /// is gone. No operation needs a check of its own.
  template <class Field>
  Field& Live(Field& field) const {
    RequireAlive();
    return field;
  }
  void RequireAlive() const;
  ScaleMode Scale() const;
  const WidgetKind& Kind() const noexcept { return m_Kind; }

  /// Where handlers may run, which may remove the widget: keeps the adapter, and the toolkit's widgets in
  /// their places until the outermost scope ends.
  class HandlerScope {
   public:
    explicit HandlerScope(WidgetCore& core) : m_Self(&core.Self()), m_Handling(*core.m_Place.state) {}

   private:
    Ref<Widget> m_Self;
    SurfaceState::Handling m_Handling;
  };

  /// Calls the listener, if there is one. A numbered error of a handler ends with the handler: it must not
  /// unwind the toolkit's event loop.
  template <class Call>
  void Notify(Call&& call) {
    if (!m_Listener) return;
    const HandlerScope scope(*this);
    BestEffort([&] { call(*m_Listener); });
  }
  void NotifyClick() {
    Notify([](WidgetListener& listener) { listener.OnClick(); });
  }
  void NotifyChange() {
    Notify([](WidgetListener& listener) { listener.OnChange(); });
  }

  // The common operations of Widget.
  void Move(float left, float top, float width, float height);
  void SetBackColor(OleColor color);
  void SetForeColor(OleColor color);
  void SetFont(Ref<Font> font);
  void SetVisible(bool visible);
  bool IsEnabled() const;
  void SetEnabled(bool enabled);
  void SetZOrder(StackPosition position);
  void SetFocus();
  void Refresh();
  bool OpenMenu();

  /// @name What a kind does in its own way.
  /// @{
  /// The height that the widget takes where `height` was asked for, in the surface's scale.
  virtual float HeightFor(float height) const { return height; }
  /// Adds the colours that differ from what the widget would inherit.
  virtual void CollectColors(QPalette& own, const QPalette& inherited) const;
  virtual void OnFontApplied() {}
  /// Passes on to the toolkit's widget what FlushLater has put off: before the widget is painted, and at the
  /// latest with the next turn of the event loop.
  virtual void Flush() {}
  /// True while the widget takes neither mouse nor keys from the user.
  virtual bool IsBlocked() const { return false; }
  virtual bool TakesWheel() const { return true; }
  virtual bool TakesEnter() const { return false; }
  /// Whether a click on that part, or on the widget itself, is one on the widget as a whole.
  virtual bool IsClickedBy(const QWidget& /*part*/) const { return true; }
  /// @}

  void OnFontChanged(const Font& font) override;
  void ApplyGeometry();
  void ApplyColors();
  void FlushLater() { m_Place.state->FlushLater(Ref<Widget>(&Self())); }

  struct State {
    float left = 0, top = 0, width = 0, height = 0;
    OleColor backColor = 0, foreColor = 0;
    bool isVisible = false;
    Text tag;
  };
  State m_State;
  WidgetPlace m_Place;
  Ref<Font> m_Font;
  WidgetListener* m_Listener = nullptr;

 private:
  friend class SurfaceState;
  bool eventFilter(QObject* target, QEvent* event) override;
  void ApplyFont();

  bool OnMouse(QWidget& target, QMouseEvent& event);
  void NotifyMouse(QWidget& target, const QMouseEvent& event);
  void NotifyClickOf(const QWidget& target, const QMouseEvent& event, QPoint at);
  bool EndsHere(const QWidget& target, const QMouseEvent& event) const;
  bool OnKey(QWidget& target, QKeyEvent& event);
  bool OnTyped(QWidget& target, QKeyEvent& event);
  bool OnInputMethod(QWidget& target, QInputMethodEvent& event);
  bool EndKey(QKeyEvent& event) const;
  QString FilterTyped(const QString& text);
  bool Replay(QWidget& target, QEvent& event);
  bool OnFocusIn(QWidget& widget);
  void OnFocusOut(Qt::FocusReason reason);

  const WidgetKind& m_Kind;
  QPointer<QWidget> m_Widget;
  bool m_HasParts = false;
  bool m_HasOwnColors = false;
  bool m_IsApplying = false;   // colours or font: the toolkit signals our own change
  bool m_IsReplaying = false;  // an event that the listener has seen is on its way to the widget
  bool m_IsPressed = false;    // the left button went down on this widget
  bool m_IsInMouseDown = false;
  bool m_DropsMenu = false;  // disabled while its mouse-down was handled
};

}  // namespace cardwright::qt
