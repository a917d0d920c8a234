// SPDX-License-Identifier: MIT
// Which libraries a script file loads into the process. The loader lists them on standard error.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "RunProgram.h"

namespace cardwright::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char *kJavaScript = "libmozjs", *kToolkit = "libQt6", *kData = "libgdal";

std::string LibrariesLoadedFor(const std::string& name, const std::string& script) {
  const TempFolder folder;
  const Outcome outcome =
      RunProgram("env", {"LD_DEBUG=files", CARDWRIGHT_PROGRAM, "script", folder.Write(name, script)});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.err, HasSubstr("libpcre2"));
  return outcome.err;
}

TEST(Start, OfAVBScriptFileLoadsNoLargeLibrary) {
  const std::string loaded = LibrariesLoadedFor("a.vbs", "");
  for (const char* library : {kJavaScript, kToolkit, kData}) EXPECT_THAT(loaded, Not(HasSubstr(library)));
}

TEST(Start, OfAJScriptFileLoadsTheLibraryOfItsLanguageOnly) {
  const std::string loaded = LibrariesLoadedFor("a.js", "");
  EXPECT_THAT(loaded, HasSubstr(kJavaScript));
  for (const char* library : {kToolkit, kData}) EXPECT_THAT(loaded, Not(HasSubstr(library)));
}

TEST(Start, OfFormsLoadsTheLibraryOfJScriptForFormsInItOnly) {
  const std::string program = "Set v = CreateObject(\"Cardwright.Vellum\")";
  const std::string loaded = LibrariesLoadedFor("a.vbs", program);
  EXPECT_THAT(loaded, HasSubstr(kToolkit));
  EXPECT_THAT(loaded, Not(HasSubstr(kJavaScript)));
}

TEST(Start, OfAJScriptFileReportsAMissingModule) {
  const TempFolder folder;
  const std::string program = folder.File("cardwright");
  std::filesystem::copy_file(CARDWRIGHT_PROGRAM, program);
  const Outcome outcome = RunProgram(program, {"script", folder.Write("a.js", "")});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_THAT(outcome.err, HasSubstr("cardwright: the jscript module cannot be loaded: "));
  EXPECT_EQ(RunProgram(program, {"script", folder.Write("a.vbs", "")}).status, 0);
}

}  // namespace
}  // namespace cardwright::testing
