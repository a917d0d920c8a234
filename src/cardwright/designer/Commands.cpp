// The commands on the selected control.

#include "cardwright/designer/FormDesigner.h"
#include "cardwright/model/ControlClasses.h"

namespace cardwright {

void FormDesigner::Copy() {
  const Ref<FormDesigner> keepAlive(this);
  const Ref<IControl> control = m_Current;
  if (!control || IsForm(*control)) return;
  const Ref<Widget> widget(dynamic_cast<Widget*>(control->BoundObject().get()));
  if (!widget) return;
  m_Clipboard.Copy(*control, *widget);
  SetMenuState(u"mnuPaste", !m_Clipboard.IsEmpty());
}

void FormDesigner::Cut() {
  const Ref<FormDesigner> keepAlive(this);
  Copy();
  Delete();
  m_IntoFrame = false;
}

// The placing of a drawn control does the work, with a rectangle at the corner.
void FormDesigner::Paste() {
  if (m_Clipboard.IsEmpty()) return;
  const Ref<FormDesigner> keepAlive(this);
  m_IntoFrame = true;
  m_TypeToAdd = m_Clipboard.Type();
  m_MouseDownX = 0;
  m_MouseDownY = 0;
  m_PasteMode = true;
  SurfaceMouseUp(MouseButton::Left, 0, m_Clipboard.Width(), m_Clipboard.Height());
  m_PasteMode = false;
  m_IntoFrame = false;
}

void FormDesigner::TakeClipboard(const FormDesigner& other) {
  m_Clipboard = other.m_Clipboard;
  SetMenuState(u"mnuPaste", !m_Clipboard.IsEmpty());
}

// Hosts know a deleted control by its widget's name: ObjectRemoved tells that one, not the author's.
void FormDesigner::Delete() {
  const Ref<FormDesigner> keepAlive(this);
  const Ref<IControl> control = m_Current;
  if (!control || IsForm(*control)) return;
  const Text name = AttemptOr(Text(), [&] { return control->Name(); });
  const Ref<IControl> form = Form();
  if (form && form->Name() == ToLower(name)) return;
  const Ref<Widget> widget(dynamic_cast<Widget*>(control->BoundObject().get()));
  if (widget && ClassOf(*control).design.isContainer) RemoveChildren(*widget);
  RemoveFromLists(*control);
  ShowHandles(false);
  Attempt([&] { Handles().PutInto(nullptr); });  // a frame would take them with it
  Attempt([&] { Canvas().Remove(name); });
  m_Current = nullptr;
  Attempt([&] {
    Variant removed(name);
    Variant args[] = {Variant::ByRef(removed)};
    RaiseEvent(u"ObjectRemoved", args);
  });
  const Ref<Collection> left = m_Controls;  // a handler may end the surface
  if (left->Count() == 0) return;
  for (const Ref<IControl>& other : ControlsOf(*left)) Attempt([&] { other->LinkControlDelete(*left); });
  AttachLinks();
  if (const Ref<IControl> first = Form()) Attempt([&] { SetCtrl(first); });
  Attempt([&] { RaiseRefreshPropertyList(); });
}

void FormDesigner::RemoveFromLists(const IControl& control) {
  Attempt([&] {
    const Text key = ToLower(control.UserName());
    if (FindControl(*m_Controls, key) == &control) m_Controls->Remove(Variant(key));
  });
  Attempt([&] { m_ZList->Remove(Variant(control.Name())); });
}

// One level only: what stands in a frame inside the frame loses its widget and stays in the lists, and a
// project saved then counts it still.
void FormDesigner::RemoveChildren(const Widget& frame) {
  for (const Ref<IControl>& child : ControlsOf(*m_Controls)) {
    const Ref<Widget> widget(dynamic_cast<Widget*>(child->BoundObject().get()));
    const bool isInside = widget && AttemptOr(false, [&] { return widget->Container() == &frame; });
    if (!isInside) continue;
    Attempt([&] { child->Delete(); });
    RemoveFromLists(*child);
  }
}

void FormDesigner::SetForeground() {
  if (m_Locked || !m_Current) return;
  const Ref<FormDesigner> keepAlive(this);
  ChangeZOrder(*m_Current, StackPosition::Front);
  Attempt([&] { Handles().RaiseMover(); });
}

void FormDesigner::SetBackground() {
  if (m_Locked || !m_Current) return;
  const Ref<FormDesigner> keepAlive(this);
  ChangeZOrder(*m_Current, StackPosition::Back);
}

// To the end of the list in both cases: projects are stacked anew by replaying it in its order.
void FormDesigner::ChangeZOrder(IControl& control, StackPosition position) {
  const Ref<IControl> restacked(&control);
  Attempt([&] { m_ZList->Remove(Variant(restacked->Name())); });
  Attempt([&] { AppendToZList(restacked); });
  Attempt([&] { restacked->SetZOrder(static_cast<std::int16_t>(position)); });
  if (auto* widget = dynamic_cast<Widget*>(restacked->BoundObject().get()))
    Attempt([&] { widget->SetZOrder(position); });
}

void FormDesigner::LockUnlock() {
  const Ref<FormDesigner> keepAlive(this);
  if (m_Controls->Count() <= 1) return ShowHandles(false);
  const bool locks = !m_Menu.Lock().m_Checked;
  m_Menu.Lock().m_Checked = locks;
  m_Locked = locks;
  SetMenuState(u"mnuForeground", !locks);
  SetMenuState(u"mnuBackground", !locks);
  ShowHandles(true);
  Variant locked(locks);
  Variant args[] = {Variant::ByRef(locked)};
  RaiseEvent(u"ControlsLocked", args);
}

float FormDesigner::RoomFor(const IControl& control, float (Widget::*ofWidget)() const,
                            float (Surface::*ofSurface)() const) const {
  const auto* widget = dynamic_cast<Widget*>(control.BoundObject().get());
  if (!widget) Raise(ErrorNumber::ObjectNotSet);
  const Ref<Widget> container = widget->Container();
  return container ? (container.get()->*ofWidget)() : (Canvas().*ofSurface)();
}

// Handles that were hidden stay so.
void FormDesigner::CenterLeft() {
  const Ref<FormDesigner> keepAlive(this);
  const Ref<IControl> control = m_Current;
  if (!dynamic_cast<Control*>(control.get())) return;
  control->SetLeft((RoomFor(*control, &Widget::Width, &Surface::Width) - control->Width()) / 2);
  ShowHandles(m_Handles && m_Handles->IsShown());
}

void FormDesigner::CenterTop() {
  const Ref<FormDesigner> keepAlive(this);
  const Ref<IControl> control = m_Current;
  if (!dynamic_cast<Control*>(control.get())) return;
  control->SetTop((RoomFor(*control, &Widget::Height, &Surface::Height) - control->Height()) / 2);
  ShowHandles(m_Handles && m_Handles->IsShown());
}

}  // namespace cardwright
