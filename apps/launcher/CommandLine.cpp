// SPDX-License-Identifier: MIT
#include "launcher/CommandLine.h"

#include <algorithm>

#include "cardwright/automation/Locale.h"
#include "cardwright/storage/CodePage.h"

namespace cardwright::app {
namespace {

constexpr OptionText kCommonOptions[] = {
    {"--codepage <NAME>", "code page of form projects (windows-1252)"},
    {"--locale <NAME>", "language and country, as in it-IT"},
    {"-h, --help", "this text"},
    {"-v, --version", "the program's version"},
};

bool TakesValue(const OptionText& option) { return option.usage.ends_with('>'); }

// "--help" of "-h, --help", "-o" of "-o <FILE.png>".
std::string_view NameOf(const OptionText& option) {
  const std::size_t comma = option.usage.find(", ");
  const std::string_view name =
      comma == std::string_view::npos ? option.usage : option.usage.substr(comma + 2);
  return name.substr(0, name.find(' '));
}

std::string_view WithoutDashes(std::string_view name) { return name.substr(name.find_first_not_of('-')); }

// Every command knows these two letters, whether or not its help lists them.
std::string_view NameOfLetter(std::string_view letter) {
  return letter == "-h" ? "--help" : letter == "-v" ? "--version" : letter;
}

// One that is given in two rows has the second start below the first.
std::string HelpRow(const OptionText& option, std::size_t column) {
  std::string row = "\n  " + std::string(option.usage);
  row.resize(column + 1, ' ');
  for (const char c : option.help) {
    row += c;
    if (c == '\n') row.append(column, ' ');
  }
  return row;
}

}  // namespace

CommandLine::CommandLine(CommandText text) : m_Text(std::move(text)) {
  for (const OptionText& common : kCommonOptions)
    if (!Find(NameOf(common))) m_Text.options.push_back(common);
}

std::optional<int> CommandLine::Parse(std::span<const std::string> words) {
  Read(words);
  if (Has("help")) {
    PrintLine(Help());
    return kDone;
  }
  if (Has("version")) {
    PrintLine("cardwright " CARDWRIGHT_VERSION);
    return kDone;
  }
  if (m_Fault.empty()) m_Fault = ApplyRegion();
  if (m_Fault.empty()) m_Fault = FaultOfOperands();
  if (!m_Fault.empty()) return Refuse(m_Fault);
  return std::nullopt;
}

std::string CommandLine::Value(std::string_view option) const {
  const auto value = m_Values.find(option);
  return value == m_Values.end() ? std::string() : value->second;
}

int CommandLine::Fail(std::string_view reason, ExitStatus status) const {
  PrintError("cardwright " + std::string(m_Text.name) + ": " + std::string(reason));
  return status;
}

int CommandLine::Refuse(std::string_view reason) const {
  Fail(reason);
  PrintError("Try: cardwright " + std::string(m_Text.name) + " --help");
  return kWrongUse;
}

// Reads on after a fault: who asks for help gets it.
void CommandLine::Read(Words words) {
  while (!words.empty()) {
    const std::string& word = words.front();
    const bool endsOptions = word == "--";
    const bool isOperand = !word.starts_with('-') || word == "-";
    if (endsOptions || (isOperand && m_Text.optionPlace == CommandText::OptionPlace::BeforeOperands)) {
      if (endsOptions) words = words.subspan(1);
      m_Operands.insert(m_Operands.end(), words.begin(), words.end());
      return;
    }
    words = words.subspan(1);
    if (isOperand) {
      m_Operands.push_back(word);
    } else if (word.starts_with("--")) {
      ReadOption(word, words);
    } else {
      ReadLetters(std::string_view(word).substr(1), words);
    }
  }
}

// "--name", "--name=value" or "--name value".
void CommandLine::ReadOption(std::string_view word, Words& following) {
  const std::size_t equals = word.find('=');
  const std::string_view name = word.substr(0, equals);
  const OptionText* option = Find(name);
  if (!option) return SetFault("unknown option: " + std::string(name));
  std::optional<std::string_view> value;
  if (equals != std::string_view::npos) value = word.substr(equals + 1);
  Give(*option, value, following);
}

// A row of letters, each an option; one that takes a value has it in the rest of the word or in the next
// word.
void CommandLine::ReadLetters(std::string_view letters, Words& following) {
  while (!letters.empty()) {
    const std::string name = "-" + std::string(letters.substr(0, 1));
    letters.remove_prefix(1);
    const OptionText* option = Find(NameOfLetter(name));
    if (!option) return SetFault("unknown option: " + name);
    if (!TakesValue(*option)) {
      Give(*option, std::nullopt, following);
      continue;
    }
    if (letters.starts_with('=')) letters.remove_prefix(1);
    return Give(*option, letters.empty() ? std::nullopt : std::optional(letters), following);
  }
}

void CommandLine::Give(const OptionText& option, std::optional<std::string_view> value, Words& following) {
  const std::string name(NameOf(option));
  if (value && !TakesValue(option)) SetFault(name + " takes no value");
  if (!value && TakesValue(option)) {
    if (following.empty()) return SetFault(name + " needs a value");
    value = following.front();
    following = following.subspan(1);
  }
  m_Values.insert_or_assign(std::string(WithoutDashes(name)), std::string(value.value_or("")));
}

const OptionText* CommandLine::Find(std::string_view name) {
  const auto option = std::ranges::find(m_Text.options, name, NameOf);
  return option == m_Text.options.end() ? nullptr : &*option;
}

void CommandLine::SetFault(std::string fault) {
  if (m_Fault.empty()) m_Fault = std::move(fault);
}

// An empty value chooses nothing.
std::string CommandLine::ApplyRegion() const {
  const std::string codePage = Value("codepage");
  if (!codePage.empty() && !CodePage::Select(codePage)) return "unknown code page: " + codePage;
  const std::string name = Value("locale");
  if (name.empty()) return {};
  const Locale* locale = Locale::Find(Text::FromUtf8(name));
  if (!locale) return "unknown locale: " + name;
  Locale::SetCurrent(*locale);
  return {};
}

std::string CommandLine::FaultOfOperands() const {
  if (m_Operands.size() < m_Text.leastOperands)
    return std::string(m_Text.operands.substr(0, m_Text.operands.find(' '))) + " is missing";
  if (m_Operands.size() > m_Text.mostOperands) return "one word too many: " + m_Operands[m_Text.mostOperands];
  return {};
}

std::string CommandLine::Help() const {
  std::string text = "Usage: cardwright " + std::string(m_Text.name) + " [options] " +
                     std::string(m_Text.operands) + "\n" + std::string(m_Text.summary) + "\n\nOptions:";
  const auto longest =
      std::ranges::max(m_Text.options, {}, [](const OptionText& one) { return one.usage.size(); });
  for (const OptionText& option : m_Text.options) text += HelpRow(option, longest.usage.size() + 4);
  return text;
}

}  // namespace cardwright::app
