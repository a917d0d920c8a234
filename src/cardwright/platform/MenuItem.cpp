// SPDX-License-Identifier: MIT
#include "cardwright/platform/MenuItem.h"

namespace cardwright {

namespace {

Text GetName(const MenuItem& item) { return item.m_Name; }

constexpr Member kMenuItemMembers[] = {
    Property<&GetName>(u"Name"),
    PlainField<&MenuItem::m_Caption>(u"Caption"),
    PlainField<&MenuItem::m_Enabled>(u"Enabled"),
    PlainField<&MenuItem::m_Visible>(u"Visible"),
    PlainField<&MenuItem::m_Checked>(u"Checked"),
};

}  // namespace

const MemberTable& MenuItem::Members() const {
  static const MemberTable table(kMenuItemMembers, u"Caption");
  return table;
}

}  // namespace cardwright
