#pragma once

#include <QObject>
#include <QPalette>
#include <QPointer>
#include <QWidget>

#include "cardwright/platform/Font.h"
#include "cardwright/platform/Scale.h"
#include "cardwright/platform/Widget.h"
#include "cardwright/qt/widgets/SurfaceState.h"

class QKeyEvent;
class QInputMethodEvent;
class QMouseEvent;

namespace cardwright::qt {

/// Mouse events that the toolkit's widget handles itself; the others end at the adapter, so that they do not
/// go on to the surface under it.
enum class MouseUse { None, LeftButton, All };
/// What makes the listener's click.
enum class ClickSource { MouseRelease, Widget };

/// What is fixed for a kind of widget.
struct WidgetKind {
  std::u16string_view typeName;
  OleColor backColor;
  OleColor foreColor;
  QPalette::ColorRole backRole;  ///< NoRole where the kind does not show the colour
  QPalette::ColorRole foreRole;
  bool isSeeThrough;  ///< shows what is under it unless its ground has a colour of its own
  MouseUse mouse;
  ClickSource click;
};

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
  QWidget* Native() const noexcept { return m_Widget; }
  /// The adapter of a toolkit widget or of a part that it watches, or null where it is none of this library's
  /// run-time widgets.
  static WidgetCore* Of(QWidget& widget);
  virtual Widget& Self() = 0;
  /// A part of the widget that a person knows as such, "button" or "edit" in any case; null where it has no
  /// such part.
  virtual QWidget* Part(std::u16string_view /*name*/) const { return nullptr; }

  /// Takes the toolkit's widget off the surface.
  void Detach();
  void ConvertGeometry(ScaleMode from, ScaleMode to);
  /// Moves the widget to another container, null for the surface itself, in front of what stands there. Its
  /// numbers stay.
  void StandIn(Ref<Widget> container, QWidget& parent);

 protected:
  WidgetCore(const WidgetKind& kind, WidgetPlace place);
  /// Called once, by the kind's constructor, with the widget it made as a child of the place's parent.
  void Adopt(QWidget& widget);
  /// Watches a part of the widget that gets mouse events of its own. What the part leaves unused comes on to
  /// the widget and ends there.
  void WatchPart(QWidget& part) {
    part.setMouseTracking(true);
    if (m_Place.state->isDesigned) part.unsetCursor();
    part.installEventFilter(this);
    m_HasParts = true;
  }

  /// Error 91 where the toolkit's widget is gone.
  void RequireAlive() const;
  ScaleMode Scale() const;
  const WidgetKind& Kind() const noexcept { return m_Kind; }

  /// Calls the listener, if there is one. A numbered error of a handler ends with the handler: it must not
  /// unwind the toolkit's event loop.
  template <class Call>
  void Notify(Call&& call) {
    if (!m_Listener) return;
    const Ref<Widget> keepAlive(&Self());
    const SurfaceState::Handling handling(*m_Place.state);
    Attempt([&] { call(*m_Listener); });
  }
  void NotifyClick() {
    Notify([](WidgetListener& listener) { listener.OnClick(); });
  }
  void NotifyChange() {
    Notify([](WidgetListener& listener) { listener.OnChange(); });
  }

  // The common operations of Widget.
  void Place(float left, float top, float width, float height);
  void SetBack(OleColor color);
  void SetFore(OleColor color);
  void ShareFont(Ref<Font> font);
  void SetShown(bool shown);
  void SetSwitchedOn(bool on);
  void Restack(StackPosition position);
  Ref<Object> Control() const;
  bool OpenOwnMenu();

  /// @name What a kind does in its own way.
  /// @{
  /// The height that the widget takes where `height` was asked for, in the surface's scale.
  virtual float HeightFor(float height) const { return height; }
  /// Adds the colours that differ from what the widget would inherit.
  virtual void CollectColors(QPalette& own, const QPalette& inherited) const;
  virtual void OnFontApplied() {}
  /// Hands on to the toolkit's widget what was put off with SettleSoon: before it is seen, and with the next
  /// turn of the event loop.
  virtual void Settle() {}
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
  void SettleSoon() { m_Place.state->SettleSoon(Ref<Widget>(&Self())); }

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
  void TellMouse(QWidget& target, const QMouseEvent& event);
  void TellClick(const QWidget& target, const QMouseEvent& event, QPoint at);
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
  bool m_IsApplying = false;   // colours or font: the toolkit tells of our own change
  bool m_IsReplaying = false;  // an event that the listener has seen is on its way to the widget
  bool m_IsPressed = false;    // the left button went down on this widget
  bool m_IsInMouseDown = false;
  bool m_DropsMenu = false;  // switched off while its mouse-down was handled
};

}  // namespace cardwright::qt
