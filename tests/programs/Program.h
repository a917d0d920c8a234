// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cardwright/platform/ScriptEngine.h"

namespace cardwright {

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

/// A program as a file, with what it is to show in comments of its own, here with the mark of VBScript:
/// `' expect: LINE`, `' expect error: NUMBER [at LINE[:COLUMN]]`, `' expect text: DESCRIPTION`,
/// `' locale: NAME`.
struct Program {
  std::string source;  ///< UTF-8
  std::string locale = "en-US";
  ProgramOutcome expected;
  /// Comments that look like expectations but are none.
  std::vector<std::string> faults;

  /// `comment` is what begins a comment in the program's language.
  static Program Read(const std::filesystem::path& file, std::string_view comment);
};

/// Whether a program shows what is expected of it; of an error only what the expectation tells.
bool Fits(const ProgramOutcome& expected, const ProgramOutcome& actual);

/// Runs the program's source in a new engine, with the object WScript.
ProgramOutcome RunProgram(const Program& program,
                          const std::function<std::unique_ptr<ScriptEngine>()>& makeEngine);

/// All programs below a folder of tests/, in order.
std::vector<std::filesystem::path> ProgramsBelow(std::string_view folder, std::string_view extension);

}  // namespace cardwright
