// SPDX-License-Identifier: MIT
#include "programs/Program.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <ostream>

#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Locale.h"
#include "cardwright/automation/MemberTable.h"

namespace cardwright {
namespace {

constexpr std::int32_t kLongestRun = 60'000;  // milliseconds, sanitizers included

/// Collects what the program shows.
class Echo final : public TableObject {
 public:
  Text TypeName() const override { return u"WScript"; }
  std::string output;  // UTF-8, each line ended by LF

 protected:
  const MemberTable& Members() const override {
    static constexpr Member kMembers[] = {{.name = u"Echo", .method = &Show}};
    static const MemberTable table(kMembers);
    return table;
  }

 private:
  static Variant Show(Object& self, Args args) {
    Text line;
    for (std::size_t i = 0; i < args.size(); ++i) {
      if (i > 0) line += u" ";
      line += ToText(args[i]);
    }
    static_cast<Echo&>(self).output += line.ToUtf8() + "\n";
    return {};
  }
};

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    lines.push_back(text.substr(at, end - at));
    if (lines.back().ends_with('\r')) lines.back().pop_back();
    at = end + 1;
  }
  return lines;
}

/// The text after a comment's mark and a word.
std::optional<std::string> After(const std::string& line, const std::string& head) {
  if (!line.starts_with(head)) return std::nullopt;
  std::string rest = line.substr(head.size());
  if (rest.starts_with(' ')) rest.erase(0, 1);
  return rest;
}

ProgramError& ErrorOf(Program& program) {
  if (!program.expected.error) program.expected.error.emplace();
  return *program.expected.error;
}

void ReadError(Program& program, const std::string& line, const std::string& text) {
  int number = 0, at = 0, column = 0;
  char after = '\0';
  const int read = std::sscanf(text.c_str(), "%d at %d:%d %c", &number, &at, &column, &after);
  const bool isWhole = read == 3 || (read == 2 && text.find(':') == std::string::npos) ||
                       (read == 1 && text.find_first_not_of("-0123456789 ") == std::string::npos);
  if (!isWhole) return program.faults.push_back(line);
  ProgramError& error = ErrorOf(program);
  error.number = number;
  if (read >= 2) error.line = at;
  if (read >= 3) error.column = column;
}

// A comment that begins like an expectation and is none.
bool IsDoubtful(const std::string& line, std::string_view comment) {
  const std::size_t mark = line.find_first_not_of(" \t");
  if (mark == std::string::npos || line.compare(mark, comment.size(), comment) != 0) return false;
  const std::size_t word = std::min(line.find_first_not_of(" \t", mark + comment.size()), line.size());
  const Text words = Text::FromUtf8(line.substr(word));
  return EqualsNoCase(words.View().substr(0, 6), u"expect") ||
         EqualsNoCase(words.View().substr(0, 6), u"locale");
}

void ReadLine(Program& program, const std::string& line, std::string_view comment) {
  const std::string mark = std::string(comment) + " ";
  if (const auto shown = After(line, mark + "expect:")) {
    program.expected.lines.push_back(*shown);
  } else if (const auto error = After(line, mark + "expect error:")) {
    ReadError(program, line, *error);
  } else if (const auto text = After(line, mark + "expect text:")) {
    ErrorOf(program).text = *text;
  } else if (const auto locale = After(line, mark + "locale:")) {
    program.locale = *locale;
  } else if (IsDoubtful(line, comment)) {
    program.faults.push_back(line);
  }
}

// Anything fits a missing expectation.
template <class Value>
bool FitsIfGiven(const std::optional<Value>& expected, const std::optional<Value>& actual) {
  return !expected || expected == actual;
}

bool Fits(const std::optional<ProgramError>& expected, const std::optional<ProgramError>& actual) {
  if (!expected || !actual) return expected.has_value() == actual.has_value();
  return expected->number == actual->number && FitsIfGiven(expected->line, actual->line) &&
         FitsIfGiven(expected->column, actual->column) && FitsIfGiven(expected->text, actual->text);
}

/// The thread's locale is another one for a while.
class LocaleScope {
 public:
  explicit LocaleScope(const std::string& name) {
    if (const Locale* locale = Locale::Find(Text::FromUtf8(name))) Locale::SetCurrent(*locale);
  }
  ~LocaleScope() { Locale::SetCurrent(m_Before); }
  LocaleScope(const LocaleScope&) = delete;
  LocaleScope& operator=(const LocaleScope&) = delete;

 private:
  const Locale& m_Before = Locale::Current();
};

}  // namespace

Program Program::Read(const std::filesystem::path& file, std::string_view comment) {
  std::ifstream stream(file, std::ios::binary);
  Program program;
  program.source.assign(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
  for (const std::string& line : Lines(program.source)) ReadLine(program, line, comment);
  if (program.expected.lines.empty() && !program.expected.error)
    program.faults.emplace_back("no expectation");
  if (!Locale::Find(Text::FromUtf8(program.locale)))
    program.faults.push_back("no such locale: " + program.locale);
  return program;
}

bool Fits(const ProgramOutcome& expected, const ProgramOutcome& actual) {
  return expected.lines == actual.lines && Fits(expected.error, actual.error);
}

ProgramOutcome RunProgram(const Program& program,
                          const std::function<std::unique_ptr<ScriptEngine>()>& makeEngine) {
  const LocaleScope locale(program.locale);
  const auto echo = MakeRef<Echo>();
  ProgramOutcome outcome;
  {
    const auto engine = makeEngine();
    engine->SetTimeout(kLongestRun);
    engine->AddObject(u"WScript", echo, false);
    try {
      engine->AddCode({}, Text::FromUtf8(program.source));
    } catch (const Error& error) {
      const ScriptError last = engine->LastError();
      outcome.error = ProgramError{error.Number(), last.line, last.column, last.description.ToUtf8()};
    }
  }
  // Objects that end with the engine may still have shown something.
  outcome.lines = Lines(echo->output);
  return outcome;
}

std::vector<std::filesystem::path> ProgramsBelow(std::string_view folder, std::string_view extension) {
  std::vector<std::filesystem::path> files;
  const auto tests = std::filesystem::path(CARDWRIGHT_SOURCE_DIR) / "tests" / folder;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(tests))
    if (entry.path().extension() == extension) files.push_back(entry.path());
  std::ranges::sort(files);
  return files;
}

std::ostream& operator<<(std::ostream& out, const ProgramOutcome& outcome) {
  for (const std::string& line : outcome.lines) out << "  | " << line << '\n';
  if (!outcome.error) return out << "  and no error\n";
  out << "  and error " << outcome.error->number;
  if (outcome.error->line) out << " at " << *outcome.error->line;
  if (outcome.error->column) out << ':' << *outcome.error->column;
  if (outcome.error->text) out << " (" << *outcome.error->text << ")";
  return out << '\n';
}

}  // namespace cardwright
