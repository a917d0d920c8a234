// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "cardwright/automation/MemberTable.h"

namespace cardwright::vbscript {

/// `Err`: the last error that the script ignored, and the means to raise one.
class ErrObject final : public TableObject {
 public:
  Text TypeName() const override { return u"Object"; }

  /// The properties of the error.
  struct State {
    std::int32_t number = 0;
    Text description, source, helpFile;
    std::int32_t helpContext = 0;
  };
  /// Sets the state and returns the previous one.
  State Exchange(State state) noexcept;
  void Set(int number, Text description, Text source);
  void Clear();

 protected:
  const MemberTable& Members() const override;

 private:
  std::int32_t Number() const noexcept { return m_Number; }
  void SetNumber(std::int32_t number);
  [[noreturn]] void Raise(std::int32_t number, std::optional<Text> source, std::optional<Text> description,
                          std::optional<Text> helpFile, std::optional<std::int32_t> helpContext);

  std::int32_t m_Number = 0;
  Text m_Description, m_Source, m_HelpFile;
  std::int32_t m_HelpContext = 0;
};

}  // namespace cardwright::vbscript
