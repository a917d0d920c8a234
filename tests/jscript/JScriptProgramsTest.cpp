// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <ostream>

#include "jscript/JScriptProgram.h"

namespace cardwright::jscript {
namespace {

namespace fs = std::filesystem;

/// A program in tests/jscript/<area>/, named by its path in tests/jscript without the extension.
struct ProgramFile {
  std::string name;
  fs::path Path() const { return fs::path(CARDWRIGHT_SOURCE_DIR "/tests/jscript") / (name + ".js"); }
};
void PrintTo(const ProgramFile& file, std::ostream* out) { *out << file.name; }

std::vector<ProgramFile> AllPrograms() {
  const fs::path root = CARDWRIGHT_SOURCE_DIR "/tests/jscript";
  std::vector<ProgramFile> files;
  for (const fs::path& file : ProgramFiles())
    files.push_back({file.lexically_relative(root).replace_extension().string()});
  return files;
}

// Test names may have only letters, digits and underscores: text/a-b.js is text_a_b.
std::string TestName(const ::testing::TestParamInfo<ProgramFile>& info) {
  std::string name = info.param.name;
  std::ranges::replace_if(
      name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
  return name;
}

class ProgramsTest : public ::testing::TestWithParam<ProgramFile> {};

TEST_P(ProgramsTest, MatchesItsExpectations) {
  const Program program = ReadProgram(GetParam().Path());
  for (const std::string& fault : program.faults) ADD_FAILURE() << GetParam().Path() << ": " << fault;
  const ProgramOutcome actual = RunProgram(program);
  EXPECT_TRUE(Fits(program.expected, actual)) << GetParam().Path().string() << "\nexpected:\n"
                                              << program.expected << "but it shows:\n"
                                              << actual;
}

INSTANTIATE_TEST_SUITE_P(Data, ProgramsTest, ::testing::ValuesIn(AllPrograms()), TestName);

}  // namespace
}  // namespace cardwright::jscript
