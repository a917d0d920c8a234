// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>

#include "RunProgram.h"
#include "RunningProgram.h"

namespace cardwright::testing {
namespace {

using ::testing::HasSubstr;

TEST(Fill, RejectsAMissingFormOrTheme) {
  const std::string data = SourceFile("examples/wells/wells.gpkg");
  const Outcome noForm =
      Cardwright({"fill", "/no/form.cwf", "--data", data, "--theme", "wells", "--id", "3"});
  EXPECT_EQ(noForm.status, 2);
  EXPECT_THAT(noForm.err, HasSubstr("there is no form project /no/form.cwf"));
  const Outcome noTheme =
      Cardwright({"fill", ExampleForm(), "--data", data, "--theme", "springs", "--id", "3"});
  EXPECT_EQ(noTheme.status, 2);
  EXPECT_THAT(noTheme.err, HasSubstr("the data source has no theme springs"));
}

// A form ignores a missing feature silently: what was typed would be lost at OK.
TEST(Fill, RejectsAMissingFeatureBeforeTheFormIsShown) {
  const std::string data = SourceFile("examples/wells/wells.gpkg");
  for (const char* id : {"999", "abc", "", "3 OR 1=1"})
    for (const char* option : {"--new", "--debug"}) {
      const Outcome outcome =
          Cardwright({"fill", ExampleForm(), "--data", data, "--theme", "wells", "--id", id, option});
      EXPECT_EQ(outcome.status, 2) << id;
      EXPECT_THAT(outcome.err, HasSubstr(std::string("the theme wells has no feature ") + id));
    }
}

TEST(Fill, RejectsAFormForAnotherFeatureType) {
  const Outcome outcome =
      Cardwright({"fill", ExampleForm(), "--data", SourceFile("examples/wells/wells.gpkg"), "--theme",
                  "pipelines", "--id", "1"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_THAT(outcome.err, HasSubstr("the theme pipelines has no feature 1 of the form's feature type"));
}

TEST(Fill, ReportsAMissingDisplay) {
  const Outcome outcome =
      RunProgram("/usr/bin/env", {"-u", "QT_QPA_PLATFORM", "-u", "DISPLAY", "-u", "WAYLAND_DISPLAY",
                                  CARDWRIGHT_PROGRAM, "fill", ExampleForm(), "--data",
                                  SourceFile("examples/wells/wells.gpkg"), "--theme", "wells", "--id", "3"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_THAT(outcome.err, HasSubstr("there is no display"));
}

std::vector<std::string> WordsToFill(const std::string& form) {
  return {"fill", form, "--data", SourceFile("examples/wells/wells.gpkg"), "--theme", "wells", "--id", "3"};
}

TEST(Fill, EndsAtCtrlCWhileNoScriptRuns) {
  RunningProgram fill(WordsToFill(ExampleForm()));
  ASSERT_TRUE(fill.WaitUntilItHandlesCtrlC());
  fill.PressCtrlC();
  EXPECT_EQ(fill.WaitForEnd(std::chrono::seconds(30)), SIGINT);
}

TEST(Fill, AsksAtCtrlCWhetherToStopAScriptAndEndsAtASecondOne) {
  const TempFolder folder;
  for (const std::string script : {"VBScript\r\nDo\r\nLoop\r\n", "JScript\r\nfor (;;) ;\r\n"}) {
    RunningProgram fill(WordsToFill(folder.Write(
        "endless.cwf",
        "[FORM]\r\nThemeName=wells\r\nFeatureType= 0\r\nControlsNumber= 0\r\n[SCRIPT]\r\n" + script)));
    ASSERT_TRUE(fill.WaitUntilItHandlesCtrlC());
    fill.PressCtrlC();
    ASSERT_TRUE(fill.WaitUntilItHandlesCtrlC()) << "the first one was not met";
    EXPECT_TRUE(fill.WaitUntilItRests()) << "the script does not wait for an answer";
    EXPECT_EQ(fill.WaitForEnd(std::chrono::seconds(0)), std::nullopt);
    fill.PressCtrlC();
    EXPECT_EQ(fill.WaitForEnd(std::chrono::seconds(30)), SIGINT);
  }
}

// End to end, with real keys and clicks: form, widgets, host commands, GeoPackage; read back by the data
// library's own tool.
TEST(Fill, StoresTypedValuesInTheGeoPackage) {
  const TempFolder folder;
  std::filesystem::create_directories(folder.File("examples/wells"));
  std::filesystem::create_directories(folder.File("build/demo"));
  std::filesystem::copy_file(ExampleForm(), folder.File("examples/wells/well-inspection.cwf"));
  const std::string data = folder.File("build/demo/wells.gpkg");
  std::filesystem::copy_file(SourceFile("examples/wells/wells.gpkg"), data);
  const Outcome geometryBefore = RunProgram("ogrinfo", {"-q", "-fid", "3", data, "wells"});

  const Outcome demo = RunProgram(CARDWRIGHT_DEMO, {}, {}, folder.File(""));
  EXPECT_EQ(demo.status, 0) << demo.out << demo.err;
  EXPECT_THAT(demo.out, HasSubstr("X THEME_SET_ATTRIBUTE |wells| |POINT| |DEPTH| 48.5\n"));
  EXPECT_EQ(ReadAll(folder.File("build/demo/well-inspection.png")).substr(1, 3), "PNG");

  const Outcome row = RunProgram("ogrinfo", {"-q", "-fid", "3", data, "wells"});
  EXPECT_THAT(row.out, HasSubstr("NAME (String) = Fontana della Chiesa"));
  EXPECT_THAT(row.out, HasSubstr("OWNER (String) = Comune di Forl\xc3\xac"));
  EXPECT_THAT(row.out, HasSubstr("DEPTH (Real) = 48.5"));
  EXPECT_THAT(row.out, HasSubstr("USE_CODE (String) = IND"));
  EXPECT_THAT(row.out, HasSubstr("AQUIFER (String) = Sandstone"));
  EXPECT_THAT(row.out, HasSubstr("INSPECTED (Date) = 2026/11/21"));
  const auto point = [](const std::string& text) { return text.substr(text.find("POINT")); };
  EXPECT_EQ(point(row.out), point(geometryBefore.out));
}

}  // namespace
}  // namespace cardwright::testing
