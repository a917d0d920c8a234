// SPDX-License-Identifier: MIT
// The popup menu of the bare surface and of a control.

#include "cardwright/designer/DesignMenu.h"
#include "cardwright/designer/FormDesigner.h"
#include "cardwright/designer/Selection.h"
#include "cardwright/model/Control.h"

namespace cardwright {

void FormDesigner::SetMenuState(const Text& menuName, bool state) {
  const Ref<FormDesigner> keepAlive(this);
  const Ref<MenuItem> item(m_Menu->FindNamed(menuName));
  if (!item) return;
  item->m_Enabled = state;
  Variant args[] = {Variant(item->m_Name), Variant(state)};
  RaiseEvent(u"MenuStateChanged", args);
}

// On the bare surface there is nothing to cut, delete or restack. The handles stay hidden until the next
// selection.
void FormDesigner::OpenSurfaceMenu() {
  const Ref<FormDesigner> keepAlive(this);
  ShowHandles(false);
  SetMenuState(u"mnuCopy", false);
  SetMenuState(u"mnuCut", false);
  m_Menu->ShowControlItems(false);
  BestEffort([&] { ShowMenu(); });
  SetMenuState(u"mnuCopy", true);
  SetMenuState(u"mnuCut", true);
  m_Menu->ShowControlItems(true);
}

// Hosts hear of both entries as enabled afterwards, although the controls stay locked: their own menus have
// always followed these events.
void FormDesigner::OpenControlMenu(IControl&) {
  const Ref<FormDesigner> keepAlive(this);
  if (m_Tool) return;
  const bool locked = m_Selection->IsLocked();
  if (locked) {
    SetMenuState(u"mnuForeground", false);
    SetMenuState(u"mnuBackground", false);
  }
  BestEffort([&] { ShowMenu(); });
  if (!locked) return;
  SetMenuState(u"mnuForeground", true);
  SetMenuState(u"mnuBackground", true);
}

// The chosen command runs before the entries are restored, as with menus of the platform.
void FormDesigner::ShowMenu() {
  const std::vector<Ref<MenuItem>> items = m_Menu->Items();
  const Text chosen = Canvas().ShowPopupMenu(items);
  const MenuItem* item = m_Menu->Find(chosen);
  const auto command = DesignMenu::CommandOf(chosen);
  if (m_Surface && command && item->m_Enabled && item->m_Visible) Run(*command);
}

void FormDesigner::Run(DesignCommand command) {
  switch (command) {
    case DesignCommand::Cut: return Cut();
    case DesignCommand::Copy: return Copy();
    case DesignCommand::Paste: return Paste();
    case DesignCommand::Delete: return Delete();
    case DesignCommand::SetForeground: return SetForeground();
    case DesignCommand::SetBackground: return SetBackground();
    case DesignCommand::LockUnlock: return LockUnlock();
    case DesignCommand::Properties: return RaiseEvent(u"PropertyMenuClick");
  }
}

}  // namespace cardwright
