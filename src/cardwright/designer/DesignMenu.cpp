// SPDX-License-Identifier: MIT
#include "cardwright/designer/DesignMenu.h"

#include "cardwright/automation/Conversions.h"
#include "cardwright/shared/Localisation.h"
#include "cardwright/shared/Messages.h"

namespace cardwright {
namespace {

struct Entry {
  std::u16string_view name;
  int caption;  ///< number of the message; 0 for a separator
  std::optional<DesignCommand> command;
};

// The captions of mnuForeground and mnuBackground are swapped. Translations and menus of hosts rely on these
// message numbers.
constexpr Entry kEntries[] = {
    {u"mnuCut", messages::Cut, DesignCommand::Cut},
    {u"mnuCopy", messages::Copy, DesignCommand::Copy},
    {u"mnuPaste", messages::Paste, DesignCommand::Paste},
    {u"mnuSep", 0, {}},
    {u"mnuDelete", messages::Delete, DesignCommand::Delete},
    {u"mnuSep1", 0, {}},
    {u"mnuForeground", messages::SendToBack, DesignCommand::SetForeground},
    {u"mnuBackground", messages::BringToFront, DesignCommand::SetBackground},
    {u"mnuSep2", 0, {}},
    {u"mnuLock", messages::LockControls, DesignCommand::LockUnlock},
    {u"mnuSep3", 0, {}},
    {u"mnuProps", messages::Properties, DesignCommand::Properties},
};

constexpr std::u16string_view kOfControls[] = {u"mnuDelete", u"mnuForeground", u"mnuBackground", u"mnuSep1",
                                               u"mnuSep2"};

}  // namespace

DesignMenu::DesignMenu() {
  std::vector<Ref<Object>> captioned;
  for (const Entry& entry : kEntries) {
    m_Items.push_back(MakeRef<MenuItem>(entry.name, entry.caption ? ToText(Variant(entry.caption)) : Text()));
    captioned.push_back(m_Items.back());
  }
  TranslateControls(captioned);
  m_Lock = Ref<MenuItem>(Find(u"mnuLock"));
}

MenuItem* DesignMenu::FindNamed(std::u16string_view name) const noexcept {
  return EqualsNoCase(m_Whole->m_Name, name) ? m_Whole.get() : Find(name);
}

MenuItem* DesignMenu::Find(std::u16string_view name) const noexcept {
  for (const Ref<MenuItem>& item : m_Items)
    if (EqualsNoCase(item->m_Name, name)) return item.get();
  return nullptr;
}

std::optional<DesignCommand> DesignMenu::CommandOf(std::u16string_view name) noexcept {
  for (const Entry& entry : kEntries)
    if (EqualsNoCase(entry.name, name)) return entry.command;
  return {};
}

void DesignMenu::ShowControlItems(bool show) const noexcept {
  for (std::u16string_view name : kOfControls) Find(name)->m_Visible = show;
}

}  // namespace cardwright
