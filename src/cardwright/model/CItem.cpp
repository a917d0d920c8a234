// SPDX-License-Identifier: MIT
#include "cardwright/model/CItem.h"

namespace cardwright {
namespace {

constexpr Member kItemMembers[] = {
    PlainField<&CItem::m_Value>(u"Value"),
    PlainField<&CItem::m_Text>(u"Text"),
    PlainField<&CItem::m_Checked>(u"Checked"),
};

}  // namespace

const MemberTable& CItem::Members() const {
  static const MemberTable table(kItemMembers);
  return table;
}

}  // namespace cardwright
