// SPDX-License-Identifier: MIT
#include "cardwright/editor/CElement.h"

namespace cardwright {

namespace {

constexpr Member kElementMembers[] = {
    PlainField<&CElement::m_FontBold>(u"FontBold"),
    PlainField<&CElement::m_Color>(u"Color"),
};

}  // namespace

const MemberTable& CElement::Members() const {
  static const MemberTable table(kElementMembers);
  return table;
}

}  // namespace cardwright
