// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "RunProgram.h"

namespace cardwright::testing {
namespace {

TEST(Render, WritesAPictureOfTheForm) {
  const TempFolder folder;
  const std::string picture = folder.File("form è.png");
  EXPECT_EQ(Cardwright({"render", ExampleForm(), "-o", picture}).status, 0);
  const std::string bytes = ReadAll(picture);
  EXPECT_EQ(bytes.substr(1, 3), "PNG");
  EXPECT_GT(bytes.size(), 4000U);
}

TEST(Render, ShowsTheGridWithDesign) {
  const TempFolder folder;
  const std::string filled = folder.File("filled.png");
  const std::string drawn = folder.File("drawn.png");
  EXPECT_EQ(Cardwright({"render", ExampleForm(), "-o", filled}).status, 0);
  EXPECT_EQ(Cardwright({"render", ExampleForm(), "--design", "-o", drawn}).status, 0);
  EXPECT_EQ(ReadAll(drawn).substr(1, 3), "PNG");
  EXPECT_NE(ReadAll(drawn), ReadAll(filled));
}

TEST(Render, RejectsAPictureThatIsTooLarge) {
  const TempFolder folder;
  const std::string form =
      folder.Write("wide.cwf", "[FORM]\r\nScaleMode= 3\r\nWidth= 99999999999\r\nHeight= 300\r\n");
  for (const char* option : {"-o", "--design"}) {
    std::vector<std::string> words{"render", form, "-o", folder.File("form.png")};
    if (option[1] == '-') words.push_back(option);
    const Outcome outcome = Cardwright(words);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("the largest picture has 8192 x 8192"), std::string::npos) << outcome.err;
  }
}

TEST(Render, ReportsAPictureThatCannotBeWritten) {
  const Outcome outcome = Cardwright({"render", ExampleForm(), "-o", "/no/such/folder/form.png"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.err.find("/no/such/folder/form.png could not be written"), std::string::npos);
}

}  // namespace
}  // namespace cardwright::testing
