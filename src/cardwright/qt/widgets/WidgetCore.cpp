// SPDX-License-Identifier: MIT
#include "cardwright/qt/widgets/WidgetCore.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPalette>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "cardwright/qt/values/Colors.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

// Far beyond any form, near enough for the toolkit's coordinates.
constexpr float kGreatestPixel = 100000.0F;

// Size of a widget that nobody has placed yet.
constexpr float kNewWidth = 81.0F;
constexpr float kNewHeight = 33.0F;

int ToPixels(float value, ScaleMode mode) {
  return static_cast<int>(
      std::lround(std::clamp(ScaleToPixels(value, mode), -kGreatestPixel, kGreatestPixel)));
}

/// What a widget would do something on, beyond mouse and keys.
bool IsUse(QEvent::Type type) {
  return type == QEvent::Wheel || type == QEvent::ContextMenu || type == QEvent::Shortcut ||
         type == QEvent::DragEnter || type == QEvent::InputMethod;
}

/// Asks a toolkit widget's event filters who its adapter is.
class AdapterQuery final : public QEvent {
 public:
  AdapterQuery() : QEvent(EventType()) {}
  static Type EventType() {
    static const int type = registerEventType();
    return static_cast<Type>(type);
  }
  WidgetCore* answer = nullptr;
};

}  // namespace

WidgetCore::WidgetCore(const WidgetKind& kind, WidgetPlace place) : m_Place(std::move(place)), m_Kind(kind) {
  m_State.backColor = kind.backColor;
  m_State.foreColor = kind.foreColor;
  const ScaleMode mode = m_Place.state->surface->Scale();
  m_State.width = PixelsToScale(kNewWidth, mode);
  m_State.height = PixelsToScale(kNewHeight, mode);
  // Each widget starts with a font of its own that looks like the surface's.
  m_Font = MakeRef<Font>(m_Place.state->surface->GetFont()->Values());
  m_Font->AddUser(*this);
}

WidgetCore::~WidgetCore() {
  m_Font->RemoveUser(*this);
  if (m_Place.state->focused == this) m_Place.state->focused = nullptr;
}

void WidgetCore::Adopt(QWidget& widget) {
  m_Widget = &widget;
  widget.setObjectName(ToQString(m_Place.name));
  widget.hide();  // explicitly, or it would be shown with its parent
  widget.setMouseTracking(true);
  if (widget.focusPolicy() == Qt::WheelFocus) widget.setFocusPolicy(Qt::StrongFocus);
  if (m_Kind.isTransparent) widget.setBackgroundRole(m_Kind.backRole);  // buttons would fill with their face
  ApplyColors();
  ApplyFont();
  m_State.height = HeightFor(m_State.height);
  ApplyGeometry();
  if (m_Place.state->isDesigned) widget.unsetCursor();
  widget.installEventFilter(this);
}

QWidget* WidgetCore::Native() const noexcept { return m_Widget; }

void WidgetCore::WatchPart(QWidget& part) {
  part.setMouseTracking(true);
  if (m_Place.state->isDesigned) part.unsetCursor();
  part.installEventFilter(this);
  m_HasParts = true;
}

WidgetCore* WidgetCore::Of(QWidget& widget) {
  AdapterQuery query;
  QCoreApplication::sendEvent(&widget, &query);
  return query.answer;
}

void WidgetCore::Detach() {
  QWidget* widget = m_Widget;
  m_Widget = nullptr;
  if (m_Place.state->focused == this) m_Place.state->focused = nullptr;
  if (!widget) return;
  widget->removeEventFilter(this);
  widget->disconnect(this);
  m_Place.state->Delete(widget);
}

void WidgetCore::RequireAlive() const {
  if (!m_Widget || !m_Place.state->surface) Raise(ErrorNumber::ObjectNotSet);
}

ScaleMode WidgetCore::Scale() const { return Live(m_Place).state->surface->Scale(); }

void WidgetCore::ConvertGeometry(ScaleMode from, ScaleMode to) {
  for (float* value : {&m_State.left, &m_State.top, &m_State.width, &m_State.height}) {
    *value = PixelsToScale(ScaleToPixels(*value, from), to);
  }
}

void WidgetCore::Reparent(Ref<Widget> container, QWidget& parent) {
  RequireAlive();
  m_Place.container = std::move(container);
  m_Place.parent = &parent;
  if (m_Widget->parentWidget() != &parent) {
    m_Widget->setParent(&parent);
    m_Widget->setVisible(m_State.isVisible);
  }
  m_Widget->raise();
}

void WidgetCore::Move(float left, float top, float width, float height) {
  RequireAlive();
  for (const float value : {left, top, width, height}) {
    if (!std::isfinite(value)) Raise(ErrorNumber::InvalidPropertyValue);
  }
  if (width < 0 || height < 0) Raise(ErrorNumber::InvalidPropertyValue);
  m_State.left = left;
  m_State.top = top;
  m_State.width = width;
  m_State.height = HeightFor(height);
  ApplyGeometry();
}

void WidgetCore::ApplyGeometry() {
  const ScaleMode mode = Scale();
  m_Widget->setGeometry(ToPixels(m_State.left, mode), ToPixels(m_State.top, mode),
                        ToPixels(m_State.width, mode), ToPixels(m_State.height, mode));
}

void WidgetCore::SetBackColor(OleColor color) {
  Live(m_State).backColor = color;
  ApplyColors();
}

void WidgetCore::SetForeColor(OleColor color) {
  Live(m_State).foreColor = color;
  ApplyColors();
}

void WidgetCore::CollectColors(QPalette& own, const QPalette& inherited) const {
  const QPalette desktop = QApplication::palette();
  const auto differs = [&](QPalette::ColorRole role, const QColor& color) {
    return role != QPalette::NoRole && inherited.color(QPalette::Active, role) != color;
  };
  const QColor back = ToQColor(m_State.backColor, desktop);
  if (differs(m_Kind.backRole, back)) own.setColor(m_Kind.backRole, back);
  const QColor fore = ToQColor(m_State.foreColor, desktop);
  if (differs(m_Kind.foreRole, fore)) {
    // Not for the disabled group: a disabled widget stays grey.
    own.setColor(QPalette::Active, m_Kind.foreRole, fore);
    own.setColor(QPalette::Inactive, m_Kind.foreRole, fore);
  }
}

/// A palette of its own is what makes a widget expensive, and most widgets look as they would without: only
/// roles that differ are set.
void WidgetCore::ApplyColors() {
  if (!m_Widget || m_IsApplying) return;
  m_IsApplying = true;
  QPalette own;
  CollectColors(own, m_Widget->parentWidget()->palette());
  const bool hasOwn = own.resolveMask() != 0;
  if (hasOwn || m_HasOwnColors) {
    m_Widget->setPalette(own);
    if (m_Kind.isTransparent) {
      m_Widget->setAutoFillBackground(own.isBrushSet(QPalette::Active, m_Kind.backRole));
    }
  }
  m_HasOwnColors = hasOwn;
  m_IsApplying = false;
}

void WidgetCore::SetFont(Ref<Font> font) {
  RequireAlive();
  if (!font) Raise(ErrorNumber::InvalidPropertyValue);
  font->AddUser(*this);
  m_Font->RemoveUser(*this);
  m_Font = std::move(font);
  ApplyFont();
}

void WidgetCore::OnFontChanged(const Font& /*font*/) { ApplyFont(); }

void WidgetCore::ApplyFont() {
  if (!m_Widget || m_IsApplying) return;
  const QFont font = m_Place.state->fonts.Get(m_Font->Values());
  if (m_Widget->font() == font) return;
  m_IsApplying = true;
  m_Widget->setFont(font);
  m_IsApplying = false;
  OnFontApplied();
}

void WidgetCore::SetVisible(bool visible) {
  Live(m_State).isVisible = visible;
  m_Widget->setVisible(visible);
}

bool WidgetCore::IsEnabled() const { return !Live(m_Widget)->testAttribute(Qt::WA_ForceDisabled); }

void WidgetCore::SetEnabled(bool enabled) {
  RequireAlive();
  // A handler of the mouse-down disables its widget to open a menu in place of the widget's own. The toolkit
  // asks for that one when the handler has returned and the widget is enabled again.
  if (!enabled && m_IsInMouseDown) m_DropsMenu = true;
  m_Widget->setEnabled(enabled);
}

void WidgetCore::SetZOrder(StackPosition position) {
  RequireAlive();
  if (position == StackPosition::Front) m_Widget->raise();
  if (position == StackPosition::Back) m_Widget->lower();
}

void WidgetCore::SetFocus() { Live(m_Widget)->setFocus(Qt::OtherFocusReason); }

void WidgetCore::Refresh() { Live(m_Widget)->repaint(); }

// As the menu key asks for it, but of this widget alone: what it leaves unused would go on to the surface.
bool WidgetCore::OpenMenu() {
  RequireAlive();
  const QPoint at = m_Widget->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
  QContextMenuEvent event(QContextMenuEvent::Keyboard, at, m_Widget->mapToGlobal(at));
  const bool endedHere = m_Widget->testAttribute(Qt::WA_NoMousePropagation);
  m_Widget->setAttribute(Qt::WA_NoMousePropagation);
  const QWidget* const openBefore = QApplication::activePopupWidget();
  QCoreApplication::sendEvent(m_Widget, &event);
  if (m_Widget) m_Widget->setAttribute(Qt::WA_NoMousePropagation, endedHere);
  const QWidget* const open = QApplication::activePopupWidget();
  return open && open != openBefore;  // some widgets take the event and have no menu
}

bool WidgetCore::eventFilter(QObject* target, QEvent* event) {
  if (event->type() == AdapterQuery::EventType()) {
    static_cast<AdapterQuery*>(event)->answer = m_Widget ? this : nullptr;
    return true;
  }
  if (!m_Widget || !m_Place.state->surface || m_IsReplaying) return false;
  auto& widget = static_cast<QWidget&>(*target);
  if (m_Place.state->isDesigned && IsUse(event->type())) {
    event->ignore();  // on to the parent, which may scroll
    return true;
  }
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove: return OnMouse(widget, static_cast<QMouseEvent&>(*event));
    case QEvent::Wheel:
      if (TakesWheel()) return false;
      event->ignore();  // on to the parent, which may scroll
      return true;
    case QEvent::ContextMenu: return std::exchange(m_DropsMenu, false);
    case QEvent::CursorChange:
      if (m_Place.state->isDesigned && widget.testAttribute(Qt::WA_SetCursor)) widget.unsetCursor();
      return false;
    case QEvent::KeyPress: return OnKey(widget, static_cast<QKeyEvent&>(*event));
    case QEvent::InputMethod: return OnInputMethod(widget, static_cast<QInputMethodEvent&>(*event));
    case QEvent::Show:
    case QEvent::Paint: Flush(); return false;
    case QEvent::FocusIn: return OnFocusIn(widget);
    case QEvent::FocusOut: OnFocusOut(static_cast<QFocusEvent*>(event)->reason()); return false;
    case QEvent::PaletteChange:
      if (target == m_Widget) ApplyColors();
      return false;
    case QEvent::FontChange:
      if (target == m_Widget) ApplyFont();
      return false;
    default: return false;
  }
}

}  // namespace cardwright::qt
