#include "cardwright/designer/DesignMenu.h"

#include "cardwright/shared/Localisation.h"

namespace cardwright {
namespace {

struct Entry {
  std::u16string_view name;
  std::u16string_view message;  ///< number of the caption; "" for a separator
  std::optional<DesignCommand> command;
};

// The captions of mnuForeground and mnuBackground read opposite to what the two do. Translations and the
// menus of hosts were made to the messages as they stand.
constexpr Entry kEntries[] = {
    {u"mnuCut", u"1025", DesignCommand::Cut},
    {u"mnuCopy", u"1026", DesignCommand::Copy},
    {u"mnuPaste", u"1027", DesignCommand::Paste},
    {u"mnuSep", u"", {}},
    {u"mnuDelete", u"1028", DesignCommand::Delete},
    {u"mnuSep1", u"", {}},
    {u"mnuForeground", u"1029", DesignCommand::SetForeground},
    {u"mnuBackground", u"1030", DesignCommand::SetBackground},
    {u"mnuSep2", u"", {}},
    {u"mnuLock", u"1031", DesignCommand::LockUnlock},
    {u"mnuSep3", u"", {}},
    {u"mnuProps", u"1032", DesignCommand::Properties},
};

constexpr std::u16string_view kOfControls[] = {u"mnuDelete", u"mnuForeground", u"mnuBackground", u"mnuSep1",
                                               u"mnuSep2"};

}  // namespace

DesignMenu::DesignMenu() {
  std::vector<Ref<Object>> captioned;
  for (const Entry& entry : kEntries) {
    m_Items.push_back(MakeRef<MenuItem>(entry.name, entry.message));
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
