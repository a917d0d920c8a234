// SPDX-License-Identifier: MIT
#include "cardwright/designer/DesignTool.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "cardwright/designer/FormDesigner.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

constexpr int kPenWidth = 2;  // pixels

}  // namespace

DesignTool::DesignTool(FormDesigner& designer, Selection& selection, DesignTool*& inUse) noexcept
    : m_Designer(&designer), m_Selection(selection), m_InUse(inUse) {
  m_InUse = this;
  Module().designDragging = true;
}

DesignTool::~DesignTool() {
  ClearScreen();
  BestEffort([&] { m_Selection.ShowHandles(true); });
  m_InUse = nullptr;
  Module().designDragging = false;
}

DesignSurface& DesignTool::Canvas() const { return m_Designer->Canvas(); }

bool DesignTool::FollowMouse() {
  Begin();
  while (Canvas().IsLeftButtonDown()) {
    const ScreenPoint cursor = Canvas().CursorPosition();
    if (cursor != m_Cursor) MoveTo(cursor);
    Canvas().Yield();
    if (!CanContinue()) return false;
  }
  ClearScreen();
  Canvas().SetFocus();
  Canvas().Repaint();
  return true;
}

void DesignTool::Begin() {
  m_Scale = Canvas().Scale();
  m_Selection.ParkFocus();
  const PointerShape pointer = Canvas().Pointer();
  m_Selection.ShowHandles(false);
  m_Cursor = Canvas().CursorPosition();
  m_TooltipDistance = static_cast<int>(std::nearbyint(Canvas().CursorHeight() * 2 / 3.0));
  m_Start = StartAt(m_Cursor);
  m_Outline.emplace(OutlineDrag::Setup{.mode = m_Start.mode,
                                       .start = m_Start.outline,
                                       .grip = m_Cursor,
                                       .container = m_Start.bounds,
                                       .gridStep = GridStepInPixels(),
                                       .minimum = m_Start.minimum});
  Canvas().ReleaseMouse();
  Canvas().Repaint();
  ShowOutline();
  Canvas().SetPointer(pointer);
}

// The step counts in the surface's scale here, and in pixels where the grid is painted: in twips the two
// differ, and forms were laid out by that.
int DesignTool::GridStepInPixels() const {
  if (!m_Designer->GridAlignment()) return 0;
  return ToLong(Variant(ScaleToPixels(static_cast<float>(m_Designer->GridStep()), m_Scale)));
}

bool DesignTool::CanContinue() const {
  const DesignSurface* surface = m_Designer->GetSurface();
  if (!surface || !IsTargetThere()) return false;
  const Ref<Widget>& container = m_Start.container;
  return !container || BestEffortOr(false, [&] { return surface->Find(container->Name()) == container; });
}

void DesignTool::MoveTo(ScreenPoint cursor) {
  const ScreenPoint before = std::exchange(m_Cursor, cursor);
  const bool hasMoved = m_Designer->TracesMouse() && Trace(before);
  if (!m_Outline->MoveTo(m_Cursor) && !hasMoved) return;
  Canvas().ShowTooltip(TooltipText(), {m_Cursor.x, m_Cursor.y + m_TooltipDistance});
  ShowOutline();
}

// A grid accepts only positions that are exactly on it, and a fast drag is polled at few of them.
bool DesignTool::Trace(ScreenPoint from) {
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

// An empty rectangle is still visible.
void DesignTool::ShowOutline() const {
  ScreenRect shown = m_Outline->Current();
  if (shown.right == shown.left) shown.right += kPenWidth;
  if (shown.bottom == shown.top) shown.bottom += kPenWidth;
  Canvas().ShowOutline(shown, kPenWidth);
}

void DesignTool::ClearScreen() const {
  DesignSurface* surface = m_Designer->GetSurface();
  if (!surface) return;
  BestEffort([&] { surface->ShowOutline({}, 0); });
  BestEffort([&] { surface->HideTooltip(); });
}

Text DesignTool::TooltipText() const {
  const FormRect now = RectangleOf(m_Outline->Current());
  const auto text = [](float first, std::u16string_view separator, float second) {
    return Text(u" ") + ToText(Variant(first)) + separator + ToText(Variant(second)) + u" ";
  };
  return m_Start.mode == DragMode::Move ? text(now.left, u", ", now.top)
                                        : text(now.width, u" x ", now.height);
}

FormRect DesignTool::RectangleOf(const ScreenRect& outline) const {
  const FormRect& from = m_Start.rectangle;
  return {from.left + ToScale(outline.left - m_Start.outline.left),
          from.top + ToScale(outline.top - m_Start.outline.top),
          from.width + ToScale(outline.Width() - m_Start.outline.Width()),
          from.height + ToScale(outline.Height() - m_Start.outline.Height())};
}

FormRect DesignTool::Result() const { return RectangleOf(Ordered(m_Outline->Current())); }

}  // namespace cardwright
