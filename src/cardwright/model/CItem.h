// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/MemberTable.h"

namespace cardwright {

/// One entry of a list control: a plain record.
class CItem final : public TableObject {
 public:
  Text TypeName() const override { return u"CItem"; }

  Text m_Value;            ///< what reaches the attribute
  Text m_Text;             ///< what the list shows
  bool m_Checked = false;  ///< check state in a list box with MultiSelect; never saved

 protected:
  const MemberTable& Members() const override;
};

}  // namespace cardwright
