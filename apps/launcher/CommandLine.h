#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace cardwright::app {

/// Exit statuses, as the help tells them.
enum ExitStatus { kDone = 0, kErrorMet = 1, kWrongUse = 2 };

/// @name One line on standard output or standard error.
/// @{
void PrintLine(std::string_view line);
void PrintError(std::string_view line);
/// @}

/// One option of a command: its name without the dashes, the word for its value ("" for a plain switch) and
/// what it does.
struct OptionText {
  std::string_view name;
  std::string_view value;
  std::string_view help;
};

/// The words of a command that runs without the toolkit. Its options stand in front of the first operand;
/// what comes behind is left as it is. Every such command knows --codepage, --locale, --help and --version as
/// well.
class CommandLine {
 public:
  CommandLine(std::string_view command, std::string_view summary, std::string_view operands,
              std::initializer_list<OptionText> options);

  /// Reads the words. A status where the run ends here: help or version was asked for, or the words are
  /// wrong, which has been said on standard error.
  std::optional<int> Parse(std::span<const std::string> words);

  bool Has(std::string_view name) const { return m_Given.contains(name); }
  std::span<const std::string> Operands() const noexcept { return m_Rest; }
  /// Says what is wrong with the words on standard error; the status to end with.
  int Refuse(std::string_view reason) const;

 private:
  /// What is wrong with the words; empty if nothing is.
  std::string Read(std::span<const std::string> words);
  std::string Apply() const;
  std::string Value(std::string_view name) const;
  std::string Help() const;

  std::string_view m_Command, m_Summary, m_Operands;
  std::vector<OptionText> m_Options;
  std::map<std::string, std::string, std::less<>> m_Given;
  std::vector<std::string> m_Rest;
};

}  // namespace cardwright::app
