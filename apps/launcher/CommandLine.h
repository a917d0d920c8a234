// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <limits>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "launcher/Console.h"

namespace cardwright::app {

/// One option of a command, as its help shows it. The parser takes the option's names and the word for its
/// value from `usage`: "--new", "--data <SOURCE>", "-o <FILE.png>", "-h, --help".
struct OptionText {
  std::string_view usage;
  std::string_view help;  ///< a line break in it starts a new line of the same column
};

/// What a command takes from its command line, and the texts of its help.
struct CommandText {
  static constexpr std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max();
  /// Where options are accepted. The words after a script file belong to the script.
  enum class OptionPlace { Anywhere, BeforeOperands };

  std::string_view name;
  std::string_view summary;
  std::string_view operands;  ///< as the help shows them: "FORM", "FORM…"
  std::size_t leastOperands = 0;
  std::size_t mostOperands = kAnyNumber;
  std::vector<OptionText> options;
  OptionPlace optionPlace = OptionPlace::Anywhere;
};

/// The parsed command line of one command. Every command also takes --codepage, --locale, --help and
/// --version; one that lists any of these itself gives it a help text of its own.
class CommandLine {
 public:
  explicit CommandLine(CommandText text);

  /// Parses the words that follow the command's name, and makes the chosen code page and locale current.
  /// @return the exit status if the program ends here: help or the version was printed, or wrong use was
  /// reported
  std::optional<int> Parse(std::span<const std::string> words);

  /// @name An option by its long name, or by its letter if it has no other, without the dashes.
  /// @{
  bool Has(std::string_view option) const { return m_Values.contains(option); }
  /// "" if the option was not given.
  std::string Value(std::string_view option) const;
  /// @}
  const std::vector<std::string>& Operands() const noexcept { return m_Operands; }

  /// Prints what went wrong on standard error.
  /// @return the status to end with
  int Fail(std::string_view reason, ExitStatus status = kFailed) const;
  /// As Fail with kWrongUse, and points to the help.
  int Refuse(std::string_view reason) const;

 private:
  using Words = std::span<const std::string>;

  void Read(Words words);
  void ReadOption(std::string_view word, Words& following);
  void ReadLetters(std::string_view letters, Words& following);
  void Give(const OptionText& option, std::optional<std::string_view> value, Words& following);
  const OptionText* Find(std::string_view name);
  void SetFault(std::string fault);
  std::string ApplyRegion() const;
  std::string FaultOfOperands() const;
  std::string Help() const;

  CommandText m_Text;
  std::map<std::string, std::string, std::less<>> m_Values;
  std::vector<std::string> m_Operands;
  std::string m_Fault;  ///< the first one met
};

}  // namespace cardwright::app
