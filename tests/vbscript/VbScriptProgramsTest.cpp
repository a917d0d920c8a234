// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <ostream>

#include "vbscript/VbScriptProgram.h"

namespace cardwright::vbscript {
namespace {

namespace fs = std::filesystem;

/// One program of tests/vbscript/<area>/, by its path below that folder and without the extension.
struct ProgramFile {
  std::string name;
  fs::path Path() const { return fs::path(CARDWRIGHT_SOURCE_DIR "/tests/vbscript") / (name + ".vbs"); }
};
void PrintTo(const ProgramFile& file, std::ostream* out) { *out << file.name; }

std::vector<ProgramFile> AllPrograms() {
  const fs::path root = CARDWRIGHT_SOURCE_DIR "/tests/vbscript";
  std::vector<ProgramFile> files;
  for (const fs::path& file : ProgramFiles())
    files.push_back({file.lexically_relative(root).replace_extension().string()});
  return files;
}

// Test names consist of letters, digits and underscores: text/a-b.vbs becomes text_a_b.
std::string TestName(const ::testing::TestParamInfo<ProgramFile>& info) {
  std::string name = info.param.name;
  std::ranges::replace_if(
      name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
  return name;
}

class VbScriptPrograms : public ::testing::TestWithParam<ProgramFile> {};

TEST_P(VbScriptPrograms, DoWhatTheirCommentsExpect) {
  const Program program = ReadProgram(GetParam().Path());
  for (const std::string& fault : program.faults) ADD_FAILURE() << GetParam().Path() << ": " << fault;
  const ProgramOutcome actual = RunProgram(program);
  EXPECT_TRUE(Fits(program.expected, actual)) << GetParam().Path().string() << "\nexpected:\n"
                                              << program.expected << "but it shows:\n"
                                              << actual;
}

INSTANTIATE_TEST_SUITE_P(Data, VbScriptPrograms, ::testing::ValuesIn(AllPrograms()), TestName);

}  // namespace
}  // namespace cardwright::vbscript
