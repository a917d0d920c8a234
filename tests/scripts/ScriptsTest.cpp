// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <sstream>

#include "apps/RunProgram.h"

namespace cardwright::testing {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> ScriptFiles() {
  std::vector<fs::path> files;
  for (const fs::directory_entry& entry : fs::directory_iterator(SourceFile("tests/automation")))
    if (entry.path().extension() == ".vbs" || entry.path().extension() == ".js")
      files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

/// The output that the comments of a script expect: `' expect: LINE`, or with `//` in JScript.
std::string Expected(const std::string& source) {
  std::istringstream lines(source);
  std::string expected;
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with('\r')) line.pop_back();
    for (const std::string mark : {"' expect:", "// expect:"}) {
      if (!line.starts_with(mark)) continue;
      std::string text = line.substr(mark.size());
      if (text.starts_with(' ')) text.erase(0, 1);
      expected += text + "\n";
    }
  }
  return expected;
}

class Scripts : public ::testing::TestWithParam<fs::path> {};

/// Runs a script in a folder with copies of the examples.
Outcome RunBesideTheExample(const fs::path& script) {
  const TempFolder folder;
  folder.Copy("examples/wells/well-inspection.cwf");
  folder.Copy("examples/wells/map-symbol.cwf");
  folder.Copy("examples/wells/wells.gpkg");
  ::setenv("XDG_CONFIG_HOME", folder.File("config").c_str(), 1);
  // The toolkit warns if there is no private folder for its sockets.
  fs::create_directory(folder.File("runtime"));
  fs::permissions(folder.File("runtime"), fs::perms::owner_all);
  ::setenv("XDG_RUNTIME_DIR", folder.File("runtime").c_str(), 1);
  return Cardwright({"script", script.string(), fs::path(folder.File("")).parent_path().string()});
}

TEST_P(Scripts, PrintTheExpectedOutput) {
  const std::string expected = Expected(ReadAll(GetParam().string()));
  ASSERT_NE(expected, "") << "the script has no expectations";
  Outcome outcome = RunBesideTheExample(GetParam());
  // For some layouts of the heap the leak checker of GCC 12 misreads the thread-local storage of a module
  // that was loaded late, and crashes itself. The script then runs again without it.
  if (outcome.err.find("LeakSanitizer has encountered a fatal error") != std::string::npos) {
    ::setenv("ASAN_OPTIONS", "detect_leaks=0", 1);
    outcome = RunBesideTheExample(GetParam());
    ::unsetenv("ASAN_OPTIONS");
  }
  EXPECT_EQ(outcome.out, expected);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.status, 0);
}

std::string NameOf(const ::testing::TestParamInfo<fs::path>& script) {
  std::string name = script.param.filename().string();
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Files, Scripts, ::testing::ValuesIn(ScriptFiles()), NameOf);

}  // namespace
}  // namespace cardwright::testing
