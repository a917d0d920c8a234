// SPDX-License-Identifier: MIT
#include "cardwright/model/CFrame.h"

#include "cardwright/model/CommonFields.h"

namespace cardwright {

struct CFrame::Tables {
  static constexpr auto kRows = Rows(rows::Name, rows::Text, rows::BackColor, rows::Font, rows::Left,
                                     rows::Top, rows::Width, rows::Height, rows::ForeColor);
  static constexpr auto kKeys =
      Keys(keys::Text, keys::BackColor, keys::Font, keys::Geometry, keys::ForeColor);
  static constexpr auto kEvents = EventNames(u"OnClick");
};

constinit const ClassTable CFrame::kTable =
    DefineClass<Tables::kRows, kNoRows, Tables::kKeys, Tables::kEvents>(
        {.className = u"CFrame",
         .type = ControlTypeEnum::ctFrame,
         .typeText = u"Frame",
         .widgetIdentifier = u"vb.frame",
         .widgetType = u"Frame",
         .create = MakeControl<CFrame>,
         .design = {.identifier = u"VB.Frame",
                    .displayName = "Frame",
                    .captionPrefix = u"Frame",
                    .surfaceColors = SurfaceColors::BackAndFore,
                    .defaultWidth = 240,
                    .defaultHeight = 120,
                    .minimumDrawnHeight = 0,
                    .minimumDraggedHeight = 0,
                    .isContainer = true}});

bool CFrame::IsDrawing() const {
  return Designer() && Designer()->ControlTypeToAdd() != ControlTypeEnum::ctDefault;
}

void CFrame::OnClick() {
  if (!Designer()) return RunScriptEvent(u"OnClick");
  if (!m_ClickConsumed) SelectInDesigner();
  m_ClickConsumed = false;
}

void CFrame::OnMouseDown(int button, int shift, float x, float y) {
  if (!Designer()) return;
  const Ref<Control> keepAlive(this);  // drawing runs an event loop, in which the frame may be deleted
  m_ClickConsumed = IsDrawing();
  if (m_ClickConsumed) Designer()->FrameMouseDown(*this, button, shift, x, y);
  Control::OnMouseDown(button, shift, x, y);
}

void CFrame::OnMouseMove(int button, int shift, float x, float y) {
  Control::OnMouseMove(button, shift, x, y);
  if (IsDrawing()) Designer()->FrameMouseMove(button, shift, x, y);
}

void CFrame::OnMouseUp(int button, int shift, float x, float y) {
  if (IsDrawing()) Designer()->FrameMouseUp(button, shift, x, y);
}

}  // namespace cardwright
