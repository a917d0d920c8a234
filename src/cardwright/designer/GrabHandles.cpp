// SPDX-License-Identifier: MIT
#include "cardwright/designer/GrabHandles.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/shared/ResizeHandle.h"

namespace cardwright {

std::array<HandlePosition, kHandleCount> HandlePositions(float left, float top, float width, float height,
                                                         float handleWidth, float handleHeight) noexcept {
  const HandlePosition centre{left + (width - handleWidth) / 2, top + (height - handleHeight) / 2};
  const HandlePosition after{left + width, top + height};
  const HandlePosition before{left - handleWidth, top - handleHeight};
  return {centre,
          after,
          before,
          {centre.left, before.top},
          {after.left, before.top},
          {before.left, centre.top},
          {after.left, centre.top},
          {before.left, after.top},
          {centre.left, after.top}};
}

PointerShape HandlePointer(int index) noexcept {
  using enum PointerShape;
  constexpr std::array<PointerShape, kHandleCount> kPointers = {SizeAll, SizeNwSe, SizeNwSe, SizeNs, SizeNeSw,
                                                                SizeWe,  SizeWe,   SizeNeSw, SizeNs};
  return kPointers[static_cast<std::size_t>(index)];
}

GrabHandles::GrabHandles(DesignSurface& surface, HandleListener& listener, int side) : m_Surface(surface) {
  const float length = PixelsToScale(static_cast<float>(side), surface.Scale());
  for (std::size_t i = 0; i < kHandleCount; ++i) {
    m_Handles[i].listener = &listener;
    m_Handles[i].index = static_cast<int>(i);
    PictureWidget& box = surface.Handle(static_cast<int>(i));
    box.SetVisible(false);
    box.Move(box.Left(), box.Top(), length, length);
    box.SetListener(&m_Handles[i]);
  }
}

GrabHandles::~GrabHandles() {
  for (const Handle& handle : m_Handles)
    BestEffort([&] { m_Surface.Handle(handle.index).SetListener(nullptr); });
}

void GrabHandles::ShowAround(const Widget& widget, bool enabled) {
  const PictureWidget& first = m_Surface.Handle(0);
  const auto places = HandlePositions(widget.Left(), widget.Top(), widget.Width(), widget.Height(),
                                      first.Width(), first.Height());
  for (std::size_t i = 0; i < kHandleCount; ++i) {
    PictureWidget& box = m_Surface.Handle(static_cast<int>(i));
    box.Move(places[i].left, places[i].top, box.Width(), box.Height());
    box.SetVisible(true);
    PaintResizeHandle(box, enabled);
  }
}

void GrabHandles::Hide() {
  for (std::size_t i = 0; i < kHandleCount; ++i) m_Surface.Handle(static_cast<int>(i)).SetVisible(false);
}

bool GrabHandles::IsShown() const { return m_Surface.Handle(0).IsVisible(); }

void GrabHandles::Handle::OnMouseDown(int button, int, float, float) {
  listener->OnHandleDown(index, button);
}
void GrabHandles::Handle::OnMouseMove(int, int, float, float) { listener->OnHandleMove(index); }

}  // namespace cardwright
