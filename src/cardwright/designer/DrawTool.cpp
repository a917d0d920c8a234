// SPDX-License-Identifier: MIT
#include "cardwright/designer/DrawTool.h"

#include "cardwright/designer/FormDesigner.h"
#include "cardwright/model/ControlClasses.h"

namespace cardwright {
namespace {

constexpr float kMinimumDrawnWidth = 7;  // pixels, of a control that is drawn by a mere click

float AtLeast(float pixels, float length, ScaleMode scale) {
  return ScaleToPixels(length, scale) < pixels ? PixelsToScale(pixels, scale) : length;
}

}  // namespace

DrawTool::DrawTool(FormDesigner& designer, Selection& selection, DesignTool*& inUse,
                   Ref<Widget> container) noexcept
    : DesignTool(designer, selection, inUse), m_Container(std::move(container)) {}

DesignTool::Start DrawTool::StartAt(ScreenPoint cursor) const {
  Start start;
  start.container = m_Container;
  start.bounds = Canvas().WindowRect(m_Container.get());
  start.rectangle.left = ToScale(cursor.x - start.bounds.left);
  start.rectangle.top = ToScale(cursor.y - start.bounds.top);
  start.outline = {cursor.x, cursor.y, cursor.x, cursor.y};
  return start;
}

std::optional<Placement> DrawTool::Run() {
  if (!FollowMouse()) return {};
  const FormRect drawn = Result();
  const ControlTypeEnum type = Designer().ControlTypeToAdd();
  const ClassTable* table = FindDrawable(type);
  const auto minimumHeight = static_cast<float>(table ? table->design.minimumDrawnHeight : 0);
  const ScaleMode scale = Canvas().Scale();
  const float width = AtLeast(kMinimumDrawnWidth, drawn.width, scale);
  const float height = AtLeast(minimumHeight, drawn.height, scale);
  const FormRect placed = RectBetween({drawn.left, drawn.top}, {drawn.left + width, drawn.top + height});
  return Placement{.type = type, .rectangle = placed, .container = m_Container};
}

}  // namespace cardwright
