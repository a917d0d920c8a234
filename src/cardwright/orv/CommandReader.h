// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace cardwright::orv {

/// Reads a command from left to right: a word, parts between vertical bars, and the rest. Blanks, tabs and
/// line ends may separate the parts. Fails where a part is missing.
class CommandReader {
 public:
  explicit CommandReader(std::u16string_view command) noexcept : m_Rest(command) {}

  /// The next word, up to a blank or a bar; may be empty.
  std::u16string_view ReadWord() noexcept;
  /// Whether the next part begins with a bar.
  bool IsAtBar() const noexcept;
  /// The part between the next two bars; `meaning` names it in the error message.
  std::u16string_view ReadPart(std::u16string_view meaning);
  /// Everything that is left, unchanged.
  std::u16string_view ReadRest() noexcept;
  /// Fails where anything but blanks is left.
  void RequireEnd();

 private:
  std::u16string_view m_Rest;
};

/// A value as it is written in a command.
struct CommandValue {
  std::u16string_view text;
  /// The value is " " between bars, or nothing at all, which both mean Null.
  bool isClear = false;
};

/// The value in the tail of a command. With bars it is the text between the first and the last one, which may
/// hold bars and line ends itself; without, it is the tail without leading and trailing blanks.
CommandValue ReadValue(std::u16string_view tail);

/// The condition `attribute = value NEW` of a selection.
struct Condition {
  std::u16string_view attribute;
  CommandValue value;
};
Condition ReadCondition(CommandReader& reader);

/// A whole number with an optional sign and blanks around it; none for any other text.
std::optional<long long> ParseWhole(std::u16string_view text) noexcept;

}  // namespace cardwright::orv
