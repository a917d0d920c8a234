// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>

#include "cardwright/automation/MemoryBudget.h"
#include "cardwright/vbscript/syntax/Parser.h"
#include "cardwright/vbscript/syntax/Printer.h"
#include "vbscript/VbScriptProgram.h"

namespace cardwright::vbscript {
namespace {

// The programs of VbScriptProgramsTest under other conditions.

TEST(Corpus, RunsTheSameWithSmallRegisterBlocks) {
  for (const std::size_t block : {1, 13}) {
    Limits limits;
    limits.registerBlock = block;
    for (const auto& file : ProgramFiles()) {
      const Program program = ReadProgram(file);
      const ProgramOutcome actual = RunProgram(program, limits);
      EXPECT_TRUE(Fits(program.expected, actual)) << block << ' ' << file << '\n' << actual;
    }
  }
}

TEST(Corpus, RunsTheSamePrintedAndParsedAgain) {
  int programs = 0;
  for (const auto& file : ProgramFiles()) {
    Program program = ReadProgram(file);
    try {
      program.source = Print(*Parse(Text::FromUtf8(program.source))).ToUtf8();
    } catch (const SyntaxError&) {
      continue;  // a program about an error
    }
    if (program.expected.error) program.expected.error->line = program.expected.error->column = std::nullopt;
    const ProgramOutcome actual = RunProgram(program);
    EXPECT_TRUE(Fits(program.expected, actual)) << file << '\n' << program.source << actual;
    ++programs;
  }
  EXPECT_GT(programs, 500);
}

// Whether a program that runs out of memory has to stop there: it ignores no errors, which might keep it
// in a loop, not even in a Class_Terminate, whose errors are ignored.
bool StopsAtErrors(const Program& program) {
  return !program.expected.error && program.source.find("Resume Next") == std::string::npos &&
         program.source.find("Class_Terminate") == std::string::npos;
}

bool IsOutOfMemory(const ProgramOutcome& outcome) {
  constexpr int kWhileRunning = 7, kWhileCompiling = 1001;
  return outcome.error &&
         (outcome.error->number == kWhileRunning || outcome.error->number == kWhileCompiling);
}

TEST(Corpus, SucceedsOrRunsOutOfMemoryUnderAnyLimit) {
  int shortages = 0;
  for (const auto& file : ProgramFiles()) {
    const Program program = ReadProgram(file);
    // Larger ones are about large amounts of data, and take long.
    if (!StopsAtErrors(program) || program.source.size() > 4000 || file.parent_path().filename() == "limits")
      continue;
    const std::size_t before = MemoryBudget::Used();
    bool isShort = true;
    for (std::size_t bytes = 64; isShort && bytes < 1'000'000; bytes += bytes / 2) {
      Limits limits;
      limits.memoryBytes = bytes;
      const ProgramOutcome actual = RunProgram(program, limits);
      EXPECT_EQ(MemoryBudget::Used(), before) << file << ' ' << bytes;
      isShort = IsOutOfMemory(actual);
      if (!isShort) {
        EXPECT_TRUE(Fits(program.expected, actual)) << file << ' ' << bytes << '\n' << actual;
        continue;
      }
      ++shortages;
      const auto& expected = program.expected.lines;
      const auto differs = std::ranges::mismatch(actual.lines, expected);
      EXPECT_TRUE(differs.in1 == actual.lines.end()) << file << ' ' << bytes << '\n' << actual;
    }
  }
  EXPECT_GT(shortages, 500);
}

}  // namespace
}  // namespace cardwright::vbscript
