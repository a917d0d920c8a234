// SPDX-License-Identifier: MIT
// The commands on the selected control.

#include "cardwright/designer/DesignClipboard.h"
#include "cardwright/designer/DesignMenu.h"
#include "cardwright/designer/FormDesigner.h"
#include "cardwright/designer/Selection.h"
#include "cardwright/designer/StackOrder.h"
#include "cardwright/model/ControlClasses.h"

namespace cardwright {

void FormDesigner::Copy() {
  const Ref<FormDesigner> keepAlive(this);
  const Ref<IControl> control = m_Selection->Current();
  if (!control || IsForm(*control)) return;
  const Ref<Widget> widget = BoundWidget(*control);
  if (!widget) return;
  m_Clipboard->Copy(*control, *widget);
  SetMenuState(u"mnuPaste", !m_Clipboard->IsEmpty());
}

void FormDesigner::Cut() {
  const Ref<FormDesigner> keepAlive(this);
  Copy();
  Delete();
}

void FormDesigner::Paste() {
  if (m_Clipboard->IsEmpty()) return;
  const DesignClipboard source = *m_Clipboard;  // a handler may copy something else meanwhile
  const Ref<IControl> selected = m_Selection->Current();
  const bool isContainer = selected && ClassOf(*selected).design.isContainer;
  Place({.type = source.Type(),
         .rectangle = {},
         .container = isContainer ? BoundWidget(*selected) : nullptr,
         .source = &source});
}

void FormDesigner::TakeClipboard(const FormDesigner& other) {
  *m_Clipboard = *other.m_Clipboard;
  SetMenuState(u"mnuPaste", !m_Clipboard->IsEmpty());
}

// Hosts know a deleted control by its widget's name: ObjectRemoved has that one, not the user name.
void FormDesigner::Delete() {
  const Ref<FormDesigner> keepAlive(this);
  const Ref<IControl> control = m_Selection->Current();
  if (!control || IsForm(*control)) return;
  const Text name = BestEffortOr(Text(), [&] { return control->Name(); });
  const Ref<IControl> form = Form();
  if (form && form->Name() == ToLower(name)) return;
  const Ref<Widget> widget = BoundWidget(*control);
  if (widget && ClassOf(*control).design.isContainer) RemoveChildren(*widget);
  RemoveFromLists(*control);
  m_Selection->ReleaseHandles();
  BestEffort([&] { Canvas().Remove(name); });
  m_Selection->Store(nullptr);
  BestEffort([&] {
    Variant removed(name);
    Variant args[] = {Variant::ByRef(removed)};
    RaiseEvent(u"ObjectRemoved", args);
  });
  const Ref<Collection> left = ControlCollection();  // a handler may end the surface
  if (left->Count() == 0) return;
  for (const Ref<IControl>& other : ControlsOf(*left)) BestEffort([&] { other->LinkControlDelete(*left); });
  AttachLinks();
  if (const Ref<IControl> first = Form()) BestEffort([&] { SetCtrl(first); });
  BestEffort([&] { RaiseRefreshPropertyList(); });
}

void FormDesigner::RemoveFromLists(const IControl& control) {
  BestEffort([&] {
    const Text key = ToLower(control.UserName());
    if (FindControl(Controls(), key) == &control) Controls().Remove(Variant(key));
  });
  BestEffort([&] { m_StackOrder->Remove(control); });
}

// One level only: a control in a frame inside the frame loses its widget and stays in the lists, and a
// project saved then still counts it.
void FormDesigner::RemoveChildren(const Widget& container) {
  for (const Ref<IControl>& child : ControlsOf(Controls())) {
    const Ref<Widget> widget = BoundWidget(*child);
    const bool isInside = widget && BestEffortOr(false, [&] { return widget->Container() == &container; });
    if (!isInside) continue;
    BestEffort([&] { child->Delete(); });
    RemoveFromLists(*child);
  }
}

void FormDesigner::SetForeground() {
  const Ref<FormDesigner> keepAlive(this);
  Restack(StackPosition::Front);
}

void FormDesigner::SetBackground() {
  const Ref<FormDesigner> keepAlive(this);
  Restack(StackPosition::Back);
}

void FormDesigner::Restack(StackPosition position) {
  const Ref<IControl> control = m_Selection->Current();
  if (m_Selection->IsLocked() || !control) return;
  m_StackOrder->Restack(control, position);
  if (position == StackPosition::Front) m_Selection->RaiseMoveHandle();
}

void FormDesigner::LockUnlock() {
  const Ref<FormDesigner> keepAlive(this);
  if (Controls().Count() <= 1) return ShowHandles(false);
  const bool locks = !m_Selection->IsLocked();
  m_Menu->Lock().m_Checked = locks;
  m_Selection->SetLocked(locks);
  SetMenuState(u"mnuForeground", !locks);
  SetMenuState(u"mnuBackground", !locks);
  ShowHandles(true);
  Variant locked(locks);
  Variant args[] = {Variant::ByRef(locked)};
  RaiseEvent(u"ControlsLocked", args);
}

void FormDesigner::CenterLeft() { Center(&IControl::SetLeft, &IControl::Width, &FormExtent::width); }
void FormDesigner::CenterTop() { Center(&IControl::SetTop, &IControl::Height, &FormExtent::height); }

// Hidden handles stay hidden.
void FormDesigner::Center(void (IControl::*set)(float), float (IControl::*size)() const,
                          float FormExtent::*room) {
  const Ref<FormDesigner> keepAlive(this);
  const Ref<IControl> control = m_Selection->Current();
  if (!dynamic_cast<Control*>(control.get())) return;
  const Ref<Widget> widget = BoundWidget(*control);
  if (!widget) Raise(ErrorNumber::ObjectNotSet);
  const FormExtent extent = RoomIn(widget->Container().get(), Canvas());
  (control.get()->*set)((extent.*room - (control.get()->*size)()) / 2);
  ShowHandles(m_Selection->AreHandlesShown());
}

}  // namespace cardwright
