// SPDX-License-Identifier: MIT
#include "cardwright/designer/DragTool.h"

#include <cmath>

#include "cardwright/designer/FormDesigner.h"
#include "cardwright/model/ControlClasses.h"

namespace cardwright {
namespace {

constexpr int kMinimumDraggedWidth = 7;  // pixels

// A position by its distance from another. What is farther off than any screen reaches cannot be dragged:
// error 6.
int PositionAt(int origin, float distance, ScaleMode scale) {
  constexpr double kFarthest = 1e9;
  const double position = static_cast<double>(origin) + ToLong(Variant(ScaleToPixels(distance, scale)));
  if (std::abs(position) > kFarthest) Raise(ErrorNumber::Overflow);
  return static_cast<int>(position);
}

}  // namespace

DragTool::DragTool(FormDesigner& designer, Selection& selection, DesignTool*& inUse, Ref<IControl> control,
                   DragMode mode) noexcept
    : DesignTool(designer, selection, inUse), m_Control(std::move(control)), m_Mode(mode) {}

DesignTool::Start DragTool::StartAt(ScreenPoint) const {
  const Ref<Widget> widget = BoundWidget(*m_Control);
  if (!widget) Raise(ErrorNumber::ObjectNotSet);
  Start start;
  start.mode = m_Mode;
  start.rectangle = {m_Control->Left(), m_Control->Top(), m_Control->Width(), m_Control->Height()};
  start.container = widget->Container();
  start.bounds = Canvas().WindowRect(start.container.get());
  start.outline = OutlineOf(*widget, start.rectangle, start.bounds);
  start.minimum = {kMinimumDraggedWidth, ClassOf(*m_Control).design.minimumDraggedHeight};
  return start;
}

ScreenRect DragTool::OutlineOf(const Widget& widget, const FormRect& rectangle,
                               const ScreenRect& bounds) const {
  if (ClassOf(*m_Control).design.hasWindow) return Canvas().WindowRect(&widget);
  const int left = PositionAt(bounds.left, rectangle.left, Scale());
  const int top = PositionAt(bounds.top, rectangle.top, Scale());
  return {left, top, PositionAt(left, rectangle.width, Scale()), PositionAt(top, rectangle.height, Scale())};
}

bool DragTool::IsTargetThere() const { return Designer().IsAlive(*m_Control); }

// Each setter raises PropertyChanged, whose handlers may do anything, even delete the control.
void DragTool::Run() {
  if (!FollowMouse()) return;
  const FormRect dragged = Result();
  BestEffort([&] { m_Control->SetLeft(dragged.left); });
  BestEffort([&] { m_Control->SetTop(dragged.top); });
  BestEffort([&] { m_Control->SetWidth(dragged.width); });
  if (!ClassOf(*m_Control).design.hasFixedHeight) BestEffort([&] { m_Control->SetHeight(dragged.height); });
  if (Designer().IsAlive(*m_Control)) Designer().SetCtrl(m_Control);
}

}  // namespace cardwright
