// SPDX-License-Identifier: MIT
// What mouse, keys and resizes do on the surface.

#include "cardwright/designer/DesignGrid.h"
#include "cardwright/designer/DragTool.h"
#include "cardwright/designer/DrawTool.h"
#include "cardwright/designer/FormDesigner.h"
#include "cardwright/designer/GrabHandles.h"
#include "cardwright/designer/OuterSize.h"
#include "cardwright/designer/Placer.h"
#include "cardwright/designer/RedrawLock.h"
#include "cardwright/designer/Selection.h"
#include "cardwright/model/CForm.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

constexpr int kDeleteKey = 46;
constexpr std::u16string_view kSelectionTool = u"Default";  // as StateChanged names it

}  // namespace

// A click is swallowed once while events are suspended: where a handler of Resize runs a message loop, the
// next one selects.
void FormDesigner::OnClick() {
  if (m_Tool || std::exchange(m_AreEventsSuspended, false)) return;
  if (const Ref<IControl> form = Form()) SetCtrl(form);
}

void FormDesigner::Press(Ref<Widget> container, int button, int shift, FormPoint at) {
  if (m_Tool) return;
  if (button == MouseButton::Left && IsAdding()) {
    m_PressedAt = at;
    Draw(std::move(container));
  }
  if (button == MouseButton::Right && shift == 0) OpenSurfaceMenu();
}

void FormDesigner::FrameMouseDown(IControl& frame, int button, int shift, float x, float y) {
  const Ref<FormDesigner> keepAlive(this);
  const Ref<IControl> selected(&frame);
  SetCtrl(selected);
  Press(BoundWidget(frame), button, shift, {x, y});
}

void FormDesigner::Draw(Ref<Widget> container) {
  const Ref<FormDesigner> keepAlive(this);
  std::optional<Placement> drawn;
  ResumeEvents();
  {
    DrawTool tool(*this, *m_Selection, m_Tool, std::move(container));
    drawn = tool.Run();
  }
  if (drawn) Place(*drawn);
}

void FormDesigner::OnMouseMove(int, int, float, float) {
  Canvas().SetPointer(IsAdding() ? PointerShape::Cross : PointerShape::Arrow);
}

// A release without a press that draws, as of another button, gives the tool back. While adding there is one
// if the host has set ControlTypeToAdd between press and release: it draws from the press that drew last.
void FormDesigner::OnMouseUp(int button, int, float x, float y) {
  if (IsBusy()) return;
  if (button != MouseButton::Left || !IsAdding()) return EndAdding();
  Place({.type = m_TypeToAdd,
         .rectangle = RectBetween(m_PressedAt, {x, y}),
         .container = nullptr,
         .source = nullptr});
}

void FormDesigner::Place(const Placement& placement) {
  const Ref<FormDesigner> keepAlive(this);
  m_TypeToAdd = placement.type;
  if (IsBusy()) return;
  const RedrawLock lock(m_Surface);
  if (IsAdding() && !m_Placer->Place(placement)) return;
  if (!m_Surface) m_Selection->Store(nullptr);  // a handler has ended it, and the designer is an empty one
  EndAdding();
}

// Hosts reset their tool boxes on StateChanged.
void FormDesigner::EndAdding() {
  const Ref<FormDesigner> keepAlive(this);
  if (IsAdding()) {
    m_TypeToAdd = ControlTypeEnum::ctDefault;
    Variant args[] = {Variant(kSelectionTool)};
    BestEffort([&] { RaiseEvent(u"StateChanged", args); });
  }
  ShowArrowPointer();
  Module().designDragging = false;
}

void FormDesigner::ShowArrowPointer() {
  if (m_Surface) m_Surface->SetPointer(PointerShape::Arrow);
}

void FormDesigner::OnKeyDown(int& keyCode, int&) {
  if (m_EnableKeyDelete && keyCode == kDeleteKey) Delete();
}

// While a control is being added, the handles of another do nothing.
void FormDesigner::OnHandleDown(int index, int button) {
  if (m_Tool || button != MouseButton::Left || m_Selection->IsLocked() || IsAdding()) return;
  const Ref<IControl> control = m_Selection->Current();
  if (!control || !IsAlive(*control)) return;
  const Ref<FormDesigner> keepAlive(this);
  ResumeEvents();
  DragTool tool(*this, *m_Selection, m_Tool, control, static_cast<DragMode>(index));
  tool.Run();
}

void FormDesigner::OnHandleMove(int index) {
  Canvas().SetPointer(m_Selection->IsLocked() ? PointerShape::Arrow : HandlePointer(index));
}

float FormDesigner::OuterWidth() const { return m_Surface ? OuterSize::Of(*m_Surface).width : 0; }
float FormDesigner::OuterHeight() const { return m_Surface ? OuterSize::Of(*m_Surface).height : 0; }

void FormDesigner::SetOuterSize(float width, float height) {
  if (m_Surface) m_OuterSize->Set({width, height}, *m_Surface);
}

void FormDesigner::UserControl_Resize() {
  const Ref<FormDesigner> keepAlive(this);
  BestEffort([&] { SetGrid(m_GridStep); });
  if (IsBusy() || !m_Surface) return;
  m_AreEventsSuspended = true;
  m_OuterSize->Store(*m_Surface);
  BestEffort([&] {
    const Ref<IControl> form = Form();
    if (auto* resized = dynamic_cast<CForm*>(form.get())) resized->OnDesignerResized();
  });
  BestEffort([&] { RaiseEvent(u"Resize"); });
  BestEffort([&] {
    const ScaleMode scale = Canvas().Scale();
    const FormExtent size = m_OuterSize->Stored();
    RaiseNeedResize(ScaleToTwips(size.width, scale), ScaleToTwips(size.height, scale));
  });
  m_AreEventsSuspended = false;
}

// The step counts in pixels here and in the surface's scale where a drag snaps to it: in twips the two
// differ, and forms were laid out by that.
void FormDesigner::SetGrid(std::optional<std::int16_t> step, std::optional<bool> reset) {
  const std::int16_t wanted = step.value_or(-1) < 0 ? m_GridStep : *step;
  DesignSurface& surface = Canvas();
  const float inScale = PixelsToScale(static_cast<float>(wanted), surface.Scale());
  m_Grid->Paint(surface, ToInteger(Variant(inScale)), reset.value_or(false));
}

void FormDesigner::ApplyScaleAndGrid() {
  Canvas().SetScale(Module().formScaleMode);
  SetGrid();
}

}  // namespace cardwright
