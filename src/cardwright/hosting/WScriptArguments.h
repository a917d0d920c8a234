// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cardwright/automation/MemberTable.h"

namespace cardwright {

/// WScript.Arguments: the words of the command line after the script's file, from 0.
class WScriptArguments final : public TableObject {
 public:
  explicit WScriptArguments(std::vector<Text> words) : m_Words(std::move(words)) {}
  Text TypeName() const override { return u"Arguments"; }

  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(m_Words.size()); }
  /// Error 9 outside the range.
  Text Item(std::int32_t index) const;
  std::unique_ptr<Enumerator> Enumerate() override;

 protected:
  const MemberTable& Members() const override;

 private:
  const std::vector<Text> m_Words;
};

}  // namespace cardwright
