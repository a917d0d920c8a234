// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "RunProgram.h"

namespace cardwright::testing {
namespace {

using ::testing::HasSubstr;

constexpr const char* kSelect = "THEME_SELECTION_BYVALUE |wells| |POINT| OVTARVOUNIQUEID = 3 NEW";
constexpr const char* kFirst = "THEME_MOVEFIRST |wells| |POINT|";
constexpr const char* kGetDepth = "THEME_GET_ATTRIBUTE |wells| |POINT| |DEPTH|";

TEST(Orv, PrintsAReplyForEachCommand) {
  const TempFolder folder;
  const std::string data = folder.Copy("examples/wells/wells.gpkg");
  const Outcome outcome =
      Cardwright({"orv", "--data", data, "THEME_NUMBER |wells|", kSelect, kFirst, kGetDepth});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "1\n\n\n61.25\n");
}

TEST(Orv, ReadsCommandsFromStandardInput) {
  const TempFolder folder;
  const std::string data = folder.Copy("examples/wells/wells.gpkg");
  const Outcome outcome =
      Cardwright({"orv", "--data", data}, std::string(kSelect) + "\n\n" + kFirst + "\n" + kGetDepth);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "\n\n61.25\n");
}

TEST(Orv, StoresValues) {
  const TempFolder folder;
  const std::string data = folder.Copy("examples/wells/wells.gpkg");
  EXPECT_EQ(
      Cardwright({"orv", "--data", data, kSelect, kFirst, "THEME_SET_ATTRIBUTE |wells| |POINT| |DEPTH| 12.5"})
          .status,
      0);
  EXPECT_EQ(Cardwright({"orv", "--data", data, kSelect, kFirst, kGetDepth}).out, "\n\n12.5\n");
}

TEST(Orv, EndsWithStatus1AndTheReasonForARejectedValue) {
  const TempFolder folder;
  const std::string data = folder.Copy("examples/wells/wells.gpkg");
  const Outcome outcome = Cardwright(
      {"orv", "--data", data, kSelect, kFirst, "THEME_SET_ATTRIBUTE |wells| |POINT| |DIAMETER| 1,5"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("refused: "));
  EXPECT_THAT(outcome.err, HasSubstr("DIAMETER"));
}

}  // namespace
}  // namespace cardwright::testing
