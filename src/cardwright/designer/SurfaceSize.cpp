// The surface's size, scale and grid, and the stacking of what is on it.

#include "cardwright/designer/FormDesigner.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

float Converted(float value, ScaleMode from, ScaleMode to) {
  const bool fromTwips = from == ScaleMode::Twips;
  const bool toTwips = to == ScaleMode::Twips;
  if (fromTwips == toTwips) return value;
  return toTwips ? ScaleToTwips(value, from) : ScaleToPixels(value, from);
}

}  // namespace

float FormDesigner::OuterWidth() const {
  if (!m_Surface) return 0;
  const ScaleMode scale = Module().formScaleMode;
  return Converted(m_Surface->Width(), m_Surface->Scale(), scale) +
         PixelsToScale(m_Surface->HostFrame().width, scale);
}

float FormDesigner::OuterHeight() const {
  if (!m_Surface) return 0;
  const ScaleMode scale = Module().formScaleMode;
  return Converted(m_Surface->Height(), m_Surface->Scale(), scale) +
         PixelsToScale(m_Surface->HostFrame().height, scale);
}

// A size that is stored already changes nothing, even where the surface has another one by now.
void FormDesigner::SetOuterSize(float width, float height) {
  if (!m_Surface) return;
  const ScaleMode scale = Module().formScaleMode;
  const FrameSize frame = m_Surface->HostFrame();
  float surfaceWidth = m_Surface->Width();
  float surfaceHeight = m_Surface->Height();
  if (width != m_FormWidth)
    surfaceWidth = Converted(width - PixelsToScale(frame.width, scale), scale, m_Surface->Scale());
  if (height != m_FormHeight)
    surfaceHeight = Converted(height - PixelsToScale(frame.height, scale), scale, m_Surface->Scale());
  if (width == m_FormWidth && height == m_FormHeight) return;
  m_FormWidth = width;
  m_FormHeight = height;
  m_Surface->Resize(surfaceWidth, surfaceHeight);
}

void FormDesigner::UserControl_Resize() {
  const Ref<FormDesigner> keepAlive(this);
  Attempt([&] { SetGrid(m_GridStep); });
  if (m_Tracking || !m_Surface) return;
  m_Tracking = true;
  m_FormWidth = OuterWidth();
  m_FormHeight = OuterHeight();
  Attempt([&] {
    const Ref<IControl> form = Form();
    if (auto* resized = dynamic_cast<CForm*>(form.get())) resized->OnDesignerResized();
  });
  Attempt([&] { RaiseEvent(u"Resize"); });
  Attempt([&] {
    const ScaleMode scale = Canvas().Scale();
    RaiseNeedResize(ScaleToTwips(m_FormWidth, scale), ScaleToTwips(m_FormHeight, scale));
  });
  m_Tracking = false;
}

// The step counts in pixels here and in the surface's scale where a drag is held to it: in twips the two
// differ, and forms were laid out by that.
void FormDesigner::SetGrid(std::optional<std::int16_t> step, std::optional<bool> reset) {
  const std::int16_t wanted = step.value_or(-1) < 0 ? m_GridStep : *step;
  DesignSurface& surface = Canvas();
  const float inScale = PixelsToScale(static_cast<float>(wanted), surface.Scale());
  m_Grid.Paint(surface, ToInteger(Variant(inScale)), reset.value_or(false));
}

void FormDesigner::ApplyScaleAndGrid() {
  Canvas().SetScale(Module().formScaleMode);
  SetGrid();
}

std::vector<Ref<IControl>> FormDesigner::ZList() const { return ControlsOf(*m_ZList); }

void FormDesigner::ResetZList() { m_ZList = MakeRef<Collection>(); }

void FormDesigner::AppendToZList(Ref<IControl> control) {
  m_ZList->Add(Variant(Ref<Object>(control)), Variant(control->Name()));
}

}  // namespace cardwright
