#include "launcher/CommandLine.h"

#include <algorithm>
#include <cstdio>

#include "cardwright/automation/Locale.h"
#include "cardwright/storage/CodePage.h"

namespace cardwright::app {
namespace {

void Write(std::FILE* stream, std::string_view line) {
  std::fwrite(line.data(), 1, line.size(), stream);
  std::fputc('\n', stream);
  std::fflush(stream);
}

std::string Dashed(const OptionText& option) {
  std::string text = "--" + std::string(option.name);
  if (!option.value.empty()) text.append(" <").append(option.value).append(">");
  return text;
}

}  // namespace

void PrintLine(std::string_view line) { Write(stdout, line); }
void PrintError(std::string_view line) { Write(stderr, line); }

CommandLine::CommandLine(std::string_view command, std::string_view summary, std::string_view operands,
                         std::initializer_list<OptionText> options)
    : m_Command(command), m_Summary(summary), m_Operands(operands), m_Options(options) {
  m_Options.push_back({"codepage", "NAME", "code page of form projects and plain text files (windows-1252)"});
  m_Options.push_back({"locale", "NAME", "language and country, as in it-IT"});
  m_Options.push_back({"help", "", "this text (-h)"});
  m_Options.push_back({"version", "", "the program's version (-v)"});
}

std::optional<int> CommandLine::Parse(std::span<const std::string> words) {
  const std::string fault = Read(words);
  if (Has("help")) {
    PrintLine(Help());
    return kDone;
  }
  if (Has("version")) {
    PrintLine("cardwright " CARDWRIGHT_VERSION);
    return kDone;
  }
  if (!fault.empty()) return Refuse(fault);
  if (const std::string region = Apply(); !region.empty()) return Refuse(region);
  if (m_Rest.empty()) return Refuse(std::string(m_Operands.substr(0, m_Operands.find(' '))) + " is missing");
  return std::nullopt;
}

std::string CommandLine::Read(std::span<const std::string> words) {
  std::size_t next = 0;
  while (next < words.size() && words[next].size() > 1 && words[next].starts_with('-')) {
    std::string word = words[next++];
    if (word == "--") break;
    if (word == "-h") word = "--help";
    if (word == "-v") word = "--version";
    const std::size_t equals = std::min(word.find('='), word.size());
    const std::string name = word.substr(0, equals);
    const auto option = std::ranges::find_if(
        m_Options, [&](const OptionText& known) { return name == "--" + std::string(known.name); });
    if (option == m_Options.end()) return "unknown option: " + name;
    const bool hasValue = equals < word.size();
    if (option->value.empty() && hasValue) return name + " takes no value";
    std::string value = hasValue ? word.substr(equals + 1) : std::string();
    if (!option->value.empty() && !hasValue) {
      if (next == words.size()) return name + " needs a value";
      value = words[next++];
    }
    m_Given.insert_or_assign(std::string(option->name), value);
  }
  m_Rest.assign(words.begin() + static_cast<std::ptrdiff_t>(next), words.end());
  return {};
}

std::string CommandLine::Apply() const {
  if (Has("codepage") && !CodePage::Select(Value("codepage")))
    return "unknown code page: " + Value("codepage");
  if (!Has("locale")) return {};
  const Locale* locale = Locale::Find(Text::FromUtf8(Value("locale")));
  if (!locale) return "unknown locale: " + Value("locale");
  Locale::SetCurrent(*locale);
  return {};
}

std::string CommandLine::Value(std::string_view name) const { return m_Given.find(name)->second; }

int CommandLine::Refuse(std::string_view reason) const {
  const std::string program = "cardwright " + std::string(m_Command);
  PrintError(program + ": " + std::string(reason));
  PrintError("Try: " + program + " --help");
  return kWrongUse;
}

std::string CommandLine::Help() const {
  std::string text = "Usage: cardwright " + std::string(m_Command) + " [options] " + std::string(m_Operands) +
                     "\n" + std::string(m_Summary) + "\n\nOptions:";
  std::size_t width = 0;
  for (const OptionText& option : m_Options) width = std::max(width, Dashed(option).size());
  for (const OptionText& option : m_Options) {
    std::string dashed = Dashed(option);
    dashed.resize(width + 2, ' ');
    text += "\n  " + dashed + std::string(option.help);
  }
  return text;
}

}  // namespace cardwright::app
