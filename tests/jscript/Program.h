#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "jscript/Engine.h"

namespace cardwright::jscript {

/// How a program ends that meets an error which it does not catch.
struct ProgramError {
  int number = 0;
  std::optional<int> line;    ///< from 1; none where nobody says
  std::optional<int> column;  ///< from 0
  std::optional<std::string> text;
};

/// What a program shows: its lines of output, and the error at its end.
struct ProgramOutcome {
  std::vector<std::string> lines;
  std::optional<ProgramError> error;
};
std::ostream& operator<<(std::ostream& out, const ProgramOutcome& outcome);

/// A program as a file, with what it is to show in comments of its own:
/// `// expect: LINE`, `// expect error: NUMBER [at LINE[:COLUMN]]`, `// expect text: DESCRIPTION`,
/// `// locale: NAME`.
struct Program {
  std::string source;  ///< UTF-8
  std::string locale = "en-US";
  ProgramOutcome expected;
  /// Comments that look like expectations but are none.
  std::vector<std::string> faults;

  static Program Read(const std::filesystem::path& file);
};

/// Whether a program shows what is expected of it; of an error only what the expectation tells.
bool Fits(const ProgramOutcome& expected, const ProgramOutcome& actual);

/// Runs the program's source in an engine of its own.
ProgramOutcome RunProgram(const Program& program, const Limits& limits = {});

/// All programs of tests/jscript/<area>/, in order.
std::vector<std::filesystem::path> ProgramFiles();

}  // namespace cardwright::jscript
