// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/MemberTable.h"
#include "cardwright/platform/Color.h"

namespace cardwright {

/// How one element of a script is shown, while the options dialog changes it.
class CElement final : public TableObject {
 public:
  Text TypeName() const override { return u"CElement"; }

  bool m_FontBold = false;
  OleColor m_Color = 0;

 protected:
  const MemberTable& Members() const override;
};

}  // namespace cardwright
