// SPDX-License-Identifier: MIT
#include "cardwright/designer/Selection.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/model/Control.h"

namespace cardwright {

Selection::Selection(DesignSurface& surface, HandleListener& listener, int handleSide) : m_Surface(&surface) {
  m_Handles.emplace(surface, listener, handleSide);
}

// Moving handles and focus can run handlers that end the surface: each step looks at it again.
void Selection::Select(Ref<IControl> control) {
  m_Current = control;
  if (const Ref<Widget> widget = BoundWidget(*control)) {
    BestEffort([&] { widget->SetVisible(true); });
    BestEffort([&] {
      if (m_Handles) m_Handles->MoveInto(widget->Container().get());
    });
  }
  ShowHandles(true);
  ParkFocus();
}

// Where the widget is gone, the handles are hidden instead of left around another one.
void Selection::ShowHandles(bool show) {
  if (!m_Handles) return;
  const Ref<Widget> widget = show && m_Current ? BoundWidget(*m_Current) : nullptr;
  const bool isShown = widget && BestEffort([&] { m_Handles->ShowAround(*widget, !m_IsLocked); });
  if (!isShown) BestEffort([&] { m_Handles->Hide(); });
}

void Selection::ReleaseHandles() {
  ShowHandles(false);
  if (m_Handles) BestEffort([&] { m_Handles->MoveInto(nullptr); });
}

void Selection::RaiseMoveHandle() {
  if (m_Handles) BestEffort([&] { m_Handles->RaiseMoveHandle(); });
}

float Selection::HandleWidth() const {
  if (!m_Handles) Raise(ErrorNumber::ObjectNotSet);
  return m_Handles->Width();
}

void Selection::ParkFocus() {
  if (!m_Surface) return;
  BestEffort([&] {
    PictureWidget& holder = m_Surface->FocusHolder();
    holder.Move(-holder.Width(), -holder.Height(), holder.Width(), holder.Height());
    if (!holder.IsVisible()) holder.SetVisible(true);
    holder.SetFocus();
  });
}

void Selection::Detach() {
  m_Handles.reset();
  m_Surface = nullptr;
  m_Current = nullptr;
}

}  // namespace cardwright
