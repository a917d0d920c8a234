#include "cardwright/designer/Drag.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "cardwright/model/ControlClasses.h"

namespace cardwright {
namespace {

constexpr int kMinimumDraggedWidth = 7;  // pixels
constexpr int kPenWidth = 2;

int WholePixels(float value, ScaleMode scale) { return ToLong(Variant(ScaleToPixels(value, scale))); }

// A place by its distance from another. What stands farther off than any screen reaches cannot be dragged:
// error 6.
int PlaceAt(int origin, float distance, ScaleMode scale) {
  constexpr double kFarthest = 1e9;
  const double place = static_cast<double>(origin) + WholePixels(distance, scale);
  if (std::abs(place) > kFarthest) Raise(ErrorNumber::Overflow);
  return static_cast<int>(place);
}

}  // namespace

FormDesigner::Drag::Drag(FormDesigner& designer, Ref<IControl> control, DragMode mode)
    : m_Designer(designer), m_Control(std::move(control)), m_Scale(Canvas().Scale()) {
  m_Designer.ParkFocus();
  const PointerShape pointer = Canvas().Pointer();
  m_Designer.ShowHandles(false);
  m_Cursor = Canvas().CursorPosition();
  m_TooltipDistance = static_cast<int>(std::nearbyint(Canvas().CursorHeight() * 2 / 3.0));
  SetUp(m_Control ? mode : DragMode::BottomRight);
  Canvas().ReleaseMouse();
  Canvas().Repaint();
  ShowOutline();
  Canvas().SetPointer(pointer);
}

void FormDesigner::Drag::SetUp(DragMode mode) {
  if (m_Control) {
    m_Widget = Ref<Widget>(dynamic_cast<Widget*>(m_Control->BoundObject().get()));
    if (!m_Widget) Raise(ErrorNumber::ObjectNotSet);
    m_Left = m_Control->Left();
    m_Top = m_Control->Top();
    m_Width = m_Control->Width();
    m_Height = m_Control->Height();
  }
  m_Container = m_Widget ? m_Widget->Container() : ContainerOfNew();
  const ScreenRect container = Canvas().WindowRect(m_Container.get());
  ScreenRect start{m_Cursor.x, m_Cursor.y, m_Cursor.x, m_Cursor.y};
  if (m_Widget) {
    start = StartOfControl(container);
  } else {
    m_Left = Moved(m_Cursor.x - container.left);
    m_Top = Moved(m_Cursor.y - container.top);
  }
  // The step counts in the surface's scale here, and in pixels where the grid is painted: in twips the two
  // differ, as they always did.
  const int step =
      m_Designer.m_GridAlignment ? WholePixels(static_cast<float>(m_Designer.m_GridStep), m_Scale) : 0;
  m_Outline.emplace(OutlineDrag::Setup{.mode = mode,
                                       .start = start,
                                       .grip = m_Cursor,
                                       .container = container,
                                       .gridStep = step,
                                       .least = Least()});
}

ScreenRect FormDesigner::Drag::StartOfControl(const ScreenRect& container) const {
  if (ClassOf(*m_Control).design.hasWindow) return Canvas().WindowRect(m_Widget.get());
  const int left = PlaceAt(container.left, m_Left, m_Scale);
  const int top = PlaceAt(container.top, m_Top, m_Scale);
  return {left, top, PlaceAt(left, m_Width, m_Scale), PlaceAt(top, m_Height, m_Scale)};
}

Ref<Widget> FormDesigner::Drag::ContainerOfNew() const {
  if (!m_Designer.m_IntoFrame || !m_Designer.m_Current) return nullptr;
  const Ref<Widget> selected(dynamic_cast<Widget*>(m_Designer.m_Current->BoundObject().get()));
  const bool isContainer = ClassOf(*m_Designer.m_Current).design.isContainer;
  return selected && !isContainer ? selected->Container() : selected;
}

LeastSize FormDesigner::Drag::Least() const {
  if (!m_Control) return {};
  return {kMinimumDraggedWidth, ClassOf(*m_Control).design.minimumDraggedHeight};
}

bool FormDesigner::Drag::HasFixedHeight() const {
  return m_Control && ClassOf(*m_Control).design.hasFixedHeight;
}

bool FormDesigner::Drag::Run() {
  while (Canvas().IsLeftButtonDown()) {
    const ScreenPoint cursor = Canvas().CursorPosition();
    if (cursor != m_Cursor) Follow(cursor);
    // What is served meanwhile may clear it.
    m_Designer.m_Tracking = true;
    Canvas().Yield();
    if (!IsTargetThere()) return false;
  }
  return true;
}

bool FormDesigner::Drag::IsTargetThere() const {
  if (!m_Designer.m_Surface || (m_Control && !m_Designer.IsAlive(*m_Control))) return false;
  return !m_Container || AttemptOr(false, [&] { return Canvas().Find(m_Container->Name()) == m_Container; });
}

void FormDesigner::Drag::Follow(ScreenPoint cursor) {
  const ScreenPoint before = std::exchange(m_Cursor, cursor);
  const bool hasMoved = m_Designer.m_TracesMouse && Trace(before);
  if (!m_Outline->MoveTo(m_Cursor) && !hasMoved) return;
  Canvas().ShowTooltip(TooltipText(), {m_Cursor.x, m_Cursor.y + m_TooltipDistance});
  ShowOutline();
}

// A grid takes a place that is exactly on it, and a quick hand is seen at few of them.
bool FormDesigner::Drag::Trace(ScreenPoint from) {
  const int right = m_Cursor.x - from.x;
  const int down = m_Cursor.y - from.y;
  const int steps = std::max(std::abs(right), std::abs(down));
  bool hasMoved = false;
  for (int step = 1; step < steps; ++step) {
    const double part = static_cast<double>(step) / steps;
    const ScreenPoint between{from.x + static_cast<int>(std::lround(right * part)),
                              from.y + static_cast<int>(std::lround(down * part))};
    hasMoved = m_Outline->MoveTo(between) || hasMoved;
  }
  return hasMoved;
}

// An empty rectangle is still to be seen.
void FormDesigner::Drag::ShowOutline() const {
  ScreenRect shown = m_Outline->Current();
  if (shown.right == shown.left) shown.right += kPenWidth;
  if (shown.bottom == shown.top) shown.bottom += kPenWidth;
  Canvas().ShowOutline(shown, kPenWidth);
}

Text FormDesigner::Drag::TooltipText() const {
  const ScreenRect& current = m_Outline->Current();
  if (m_Outline->Mode() == DragMode::Move) {
    const float left = m_Left + Moved(current.left - Start().left);
    const float top = m_Top + Moved(current.top - Start().top);
    return Text(u" ") + ToText(Variant(left)) + u", " + ToText(Variant(top)) + u" ";
  }
  const float width = m_Width + Moved(current.Width() - Start().Width());
  const float height = m_Height + Moved(current.Height() - Start().Height());
  return Text(u" ") + ToText(Variant(width)) + u" x " + ToText(Variant(height)) + u" ";
}

ScreenRect FormDesigner::Drag::Ordered() const {
  ScreenRect rect = m_Outline->Current();
  if (rect.right < rect.left) std::swap(rect.left, rect.right);
  if (rect.bottom < rect.top) std::swap(rect.top, rect.bottom);
  return rect;
}

}  // namespace cardwright
