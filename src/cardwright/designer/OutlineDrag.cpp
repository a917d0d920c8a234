// SPDX-License-Identifier: MIT
#include "cardwright/designer/OutlineDrag.h"

#include "cardwright/shared/Lookups.h"

namespace cardwright {
namespace {

void TakeColumns(ScreenRect& rect, const ScreenRect& from) {
  rect.left = from.left;
  rect.right = from.right;
}

void TakeRows(ScreenRect& rect, const ScreenRect& from) {
  rect.top = from.top;
  rect.bottom = from.bottom;
}

}  // namespace

ScreenRect Ordered(ScreenRect rect) {
  OrderPair(rect.right, rect.left);
  OrderPair(rect.bottom, rect.top);
  return rect;
}

OutlineDrag::OutlineDrag(const Setup& setup) : m_Setup(setup), m_Current(setup.start) {}

bool OutlineDrag::MoveTo(ScreenPoint cursor) {
  ScreenRect proposed = Proposed(cursor);
  KeepMinimumSize(proposed);
  proposed = Ordered(proposed);
  KeepInContainer(proposed);
  SnapToGrid(proposed);
  if (proposed == m_Current) return false;
  m_Current = proposed;
  return true;
}

// Edges that the mode does not move stay as they were at the start.
ScreenRect OutlineDrag::Proposed(ScreenPoint cursor) const {
  const int dx = cursor.x - m_Setup.grip.x;
  const int dy = cursor.y - m_Setup.grip.y;
  ScreenRect rect = m_Setup.start;
  switch (m_Setup.mode) {
    case DragMode::Move: return {rect.left + dx, rect.top + dy, rect.right + dx, rect.bottom + dy};
    case DragMode::BottomRight:
      rect.right += dx;
      rect.bottom += dy;
      break;
    case DragMode::TopLeft:
      rect.left += dx;
      rect.top += dy;
      break;
    case DragMode::Top: rect.top += dy; break;
    case DragMode::TopRight:
      rect.top += dy;
      rect.right += dx;
      break;
    case DragMode::Left: rect.left += dx; break;
    case DragMode::Right: rect.right += dx; break;
    case DragMode::BottomLeft:
      rect.left += dx;
      rect.bottom += dy;
      break;
    case DragMode::Bottom: rect.bottom += dy; break;
  }
  return rect;
}

// Tested before crossed edges are put in order, so a control cannot be dragged through itself to its other
// side; only sizes without a minimum can.
void OutlineDrag::KeepMinimumSize(ScreenRect& proposed) const {
  const MinimumSize& minimum = m_Setup.minimum;
  if (minimum.width > 0 && proposed.Width() < minimum.width) TakeColumns(proposed, m_Current);
  if (minimum.height > 0 && proposed.Height() < minimum.height) TakeRows(proposed, m_Current);
}

void OutlineDrag::KeepInContainer(ScreenRect& proposed) const {
  const ScreenRect& container = m_Setup.container;
  if (proposed.left < container.left) TakeColumns(proposed, m_Current);
  if (proposed.top < container.top) TakeRows(proposed, m_Current);
  if (proposed.right > container.right) TakeColumns(proposed, m_Current);
  if (proposed.bottom > container.bottom) TakeRows(proposed, m_Current);
}

// A position off the grid is refused, not rounded: the outline stays until the mouse reaches a grid point.
void OutlineDrag::SnapToGrid(ScreenRect& proposed) const {
  const int step = m_Setup.gridStep;
  if (step <= 0) return;
  const bool moves = m_Setup.mode == DragMode::Move;
  const ScreenRect& origin = m_Setup.container;
  if ((proposed.left - origin.left) % step != 0) {
    proposed.left = m_Current.left;
    if (moves) proposed.right = m_Current.right;
  }
  if ((proposed.top - origin.top) % step != 0) {
    proposed.top = m_Current.top;
    if (moves) proposed.bottom = m_Current.bottom;
  }
  if (moves) return;
  if ((proposed.right - origin.left) % step != 0) proposed.right = m_Current.right;
  if ((proposed.bottom - origin.top) % step != 0) proposed.bottom = m_Current.bottom;
}

}  // namespace cardwright
