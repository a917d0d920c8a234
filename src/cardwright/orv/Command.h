#pragma once

#include <optional>
#include <string_view>

namespace cardwright::orv {

/// Reads a command from left to right: a verb, parts between vertical bars, and what is left. Blanks, tabs
/// and line ends may stand between the parts. A part that is not there refuses the command.
class CommandReader {
 public:
  explicit CommandReader(std::u16string_view command) noexcept : m_Rest(command) {}

  /// The word at this place, up to a blank or a bar; may be empty.
  std::u16string_view Word() noexcept;
  /// True where the next part stands between bars.
  bool IsAtBar() const noexcept;
  /// The part between the next two bars; `meaning` names it in the refusal.
  std::u16string_view Barred(std::u16string_view meaning);
  /// Everything that is left, as it stands.
  std::u16string_view Rest() noexcept;
  /// Refuses a command that goes on.
  void End();

 private:
  std::u16string_view m_Rest;
};

/// A value as a command carries it.
struct GivenValue {
  std::u16string_view text;
  /// " " between bars, or nothing at all: the command for "no value".
  bool isClear = false;
};

/// The value in the tail of a command. With bars it is what stands between the first and the last one, so
/// that it may hold bars and line ends itself; without, it is the tail without the blanks at its ends.
GivenValue ReadValue(std::u16string_view tail);

/// The condition `attribute = value NEW` of a selection.
struct Condition {
  std::u16string_view attribute;
  GivenValue value;
};
Condition ReadCondition(CommandReader& reader);

/// A whole number with an optional sign, blanks around it allowed; none for any other text.
std::optional<long long> ReadNumber(std::u16string_view text) noexcept;

}  // namespace cardwright::orv
