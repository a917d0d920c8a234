// What is selected on the surface, and what mouse and keys do there.

#include "cardwright/designer/FormDesigner.h"

namespace cardwright {
namespace {

constexpr int kDeleteKey = 46;

}  // namespace

bool FormDesigner::IsForm(const IControl& control) {
  const Ref<Object> object = control.BoundObject();
  return dynamic_cast<const FormDesigner*>(object.get());
}

bool FormDesigner::IsAlive(const IControl& control) const {
  const Ref<Object> widget = control.BoundObject();
  if (!m_Surface || !widget) return false;
  return AttemptOr(false, [&] { return m_Surface->Find(control.Name()).get() == widget.get(); });
}

void FormDesigner::SetCtrl(Ref<IControl> control) {
  if (!control) Raise(ErrorNumber::ObjectNotSet);
  const Ref<FormDesigner> keepAlive(this);
  if (control != m_Current) {
    Variant selected{Ref<Object>(control)};
    Variant args[] = {Variant::ByRef(selected)};
    RaiseEvent(u"CurrObjectChanged", args);
  }
  m_Current = control;
  if (IsForm(*control)) {
    SetControlTypeToAdd(ControlTypeEnum::ctDefault);
    ShowHandles(false);
  } else {
    if (auto* widget = dynamic_cast<Widget*>(control->BoundObject().get())) {
      Attempt([&] { widget->SetVisible(true); });
      Attempt([&] { Handles().PutInto(widget->Container().get()); });
    }
    ShowHandles(true);
  }
  ParkFocus();
}

// A box out of sight holds the focus: keys reach the surface, and no widget under design is typed into.
void FormDesigner::ParkFocus() {
  Attempt([&] {
    PictureWidget& holder = Canvas().FocusHolder();
    holder.Move(-holder.Width(), -holder.Height(), holder.Width(), holder.Height());
    if (!holder.IsVisible()) holder.SetVisible(true);
    holder.SetFocus();
  });
}

// Handles that cannot be placed, as around a widget that is gone, are not left standing elsewhere.
void FormDesigner::ShowHandles(bool show) {
  if (!m_Handles) return;
  if (!show) return void(Attempt([&] { m_Handles->Hide(); }));
  if (!m_Current || IsForm(*m_Current)) return;
  const Ref<Object> object = m_Current->BoundObject();
  const auto* widget = dynamic_cast<const Widget*>(object.get());
  const bool shown = widget && Attempt([&] { m_Handles->ShowAround(*widget, !AreControlsLocked()); });
  if (!shown) Attempt([&] { m_Handles->Hide(); });
}

void FormDesigner::ShowArrowPointer() {
  if (m_Surface) m_Surface->SetPointer(PointerShape::Arrow);
}

void FormDesigner::OnClick() {
  const bool selects = !m_Tracking;
  m_Tracking = false;
  const Ref<IControl> form = Form();
  if (selects && form) SetCtrl(form);
}

void FormDesigner::SurfaceMouseDown(int button, int shift, float x, float y) {
  if (m_Dragging) return;
  if (button == MouseButton::Left && IsAdding()) {
    m_MouseDownX = x;
    m_MouseDownY = y;
    TrackControl(nullptr, DragMode::BottomRight);
  }
  if (button == MouseButton::Right && shift == 0) OpenSurfaceMenu();
}

void FormDesigner::SurfaceMouseMove(int, int, float, float) {
  Canvas().SetPointer(IsAdding() ? PointerShape::Cross : PointerShape::Arrow);
}

void FormDesigner::SurfaceMouseUp(int button, int, float x, float y) { PlaceControl(button, x, y); }

void FormDesigner::OnKeyDown(int& keyCode, int&) {
  if (m_EnableKeyDelete && keyCode == kDeleteKey) Delete();
}

// While a control is being added, the handles of another are no handles.
void FormDesigner::OnHandleDown(int index, int button) {
  if (button != MouseButton::Left || m_Locked || IsAdding()) return;
  if (!m_Current || !IsAlive(*m_Current)) return;
  TrackControl(m_Current, static_cast<DragMode>(index));
}

void FormDesigner::OnHandleMove(int index) {
  Canvas().SetPointer(m_Locked ? PointerShape::Arrow : HandlePointer(index));
}

}  // namespace cardwright
