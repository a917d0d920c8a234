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
  bool IsSeparator() const noexcept { return m_Caption.IsEmpty(); }

  const Text m_Name;
  Text m_Caption;
  bool m_Enabled = true;
  bool m_Visible = true;
  bool m_Checked = false;

 protected:
  const MemberTable& Members() const override;
};

}  // namespace cardwright
