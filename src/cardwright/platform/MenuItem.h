// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/MemberTable.h"

namespace cardwright {

/// One entry of a popup menu. By name, as translators' walks and hosts reach it: Name, Caption, Enabled,
/// Visible, Checked.
class MenuItem final : public TableObject {
 public:
  /// An entry without a caption is a separator.
  MenuItem(std::u16string_view name, std::u16string_view caption) : m_Name(name), m_Caption(caption) {}

  Text TypeName() const override { return u"Menu"; }
  /// Whether the entry is a separator.
  bool IsSeparator() const noexcept { return m_Caption.IsEmpty(); }

  /// The name by which hosts and events identify the entry.
  const Text m_Name;
  /// The visible text.
  Text m_Caption;
  bool m_Enabled = true;   ///< greyed if false
  bool m_Visible = true;   ///< left out of the menu if false
  bool m_Checked = false;  ///< shown with a check mark

 protected:
  const MemberTable& Members() const override;
};

}  // namespace cardwright
