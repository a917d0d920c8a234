// SPDX-License-Identifier: MIT
// Size of the form and place of its two fixed buttons. Lengths are in pixels here and converted to the form's
// scale.

#include "cardwright/runtime/FormButton.h"
#include "cardwright/runtime/FormInput.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

constexpr float kButtonWidth = 92;
constexpr float kButtonHeight = 30;
constexpr float kButtonGap = 4;
constexpr float kSideRoom = 12;   // beside the two buttons
constexpr float kRoomAbove = 15;  // between the form's elements and the buttons
constexpr float kRoomBelow = 4;
constexpr float kLeastLeft = 4;
constexpr float kEdgeOffsetX = 2;  // of a host window that draws edges inside its frame
constexpr float kEdgeOffsetY = 4;
// While the container is being designed, the buttons lie in the form.
constexpr float kDesignRoomAtSide = 4;  // of the gap and the right margin together
constexpr float kDesignGap = 2;
constexpr float kDesignRoomBelow = 2;

}  // namespace

float FormInput::OuterWidth() const {
  if (!m_Surface) return 0;
  return m_Surface->Width() + PixelsToScale(m_Surface->HostFrame().width, m_Surface->Scale());
}

float FormInput::OuterHeight() const {
  if (!m_Surface) return 0;
  return m_Surface->Height() + PixelsToScale(m_Surface->HostFrame().height, m_Surface->Scale());
}

void FormInput::SetOuterSize(float width, float height) {
  if (!m_Surface) return;
  const ScaleMode scale = m_Surface->Scale();
  const FrameSize frame = m_Surface->HostFrame();
  m_Surface->Resize(width - PixelsToScale(frame.width, scale), height - PixelsToScale(frame.height, scale));
}

void FormInput::LayOut() {
  if (!m_Surface) return;
  const ScaleMode scale = m_Surface->Scale();
  auto pixels = [scale](float count) { return PixelsToScale(count, scale); };
  const Ref<Widget> ok(&m_OkButton->Button());  // the host may close the window when it is asked for room
  const Ref<Widget> cancel(&m_CancelButton->Button());
  const float buttonWidth = pixels(kButtonWidth);
  const float buttonHeight = pixels(kButtonHeight);
  const float frameX = pixels(m_Surface->HostFrame().width);
  const float frameY = pixels(m_Surface->HostFrame().height);
  const bool edges = m_Surface->HostHasEdges();
  const float offX = edges ? pixels(kEdgeOffsetX) : 0;
  const float offY = edges ? pixels(kEdgeOffsetY) : 0;

  const float need = 2 * buttonWidth + pixels(kSideRoom) + frameX;
  float left = OuterWidth() - need;
  if (left < 0) SetOuterSize(need, OuterHeight());
  if (left <= 0) left = pixels(kLeastLeft);
  const float top = OuterHeight() + pixels(kRoomAbove);
  ok->Move(left - offX, top - offY, buttonWidth, buttonHeight);
  cancel->Move(ok->Left() + buttonWidth + pixels(kButtonGap), top - offY, buttonWidth, buttonHeight);
  SetOuterSize(OuterWidth(), top + buttonHeight + pixels(kRoomBelow) + frameY);

  Variant size[] = {Variant(m_Surface->Width() + frameX), Variant(m_Surface->Height() + frameY)};
  RaiseEvent(u"NeedResize", size);
  ok->SetZOrder(StackPosition::Front);
  cancel->SetZOrder(StackPosition::Front);
}

void FormInput::PlaceButtonsForDesign() {
  if (!m_Surface) return;
  const ScaleMode scale = m_Surface->Scale();
  Widget& ok = m_OkButton->Button();
  Widget& cancel = m_CancelButton->Button();
  ok.SetLeft(m_Surface->Width() - ok.Width() - PixelsToScale(kDesignRoomAtSide, scale) - cancel.Width());
  ok.SetTop(m_Surface->Height() - ok.Height() - PixelsToScale(kDesignRoomBelow, scale));
  cancel.SetLeft(ok.Left() + ok.Width() + PixelsToScale(kDesignGap, scale));
  cancel.SetTop(ok.Top());
}

}  // namespace cardwright
