#include <gtest/gtest.h>

#include "Program.h"

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

TEST(Render, TellsWhenThePictureCannotBeWritten) {
  const Outcome outcome = Cardwright({"render", ExampleForm(), "-o", "/no/such/folder/form.png"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.err.find("/no/such/folder/form.png could not be written"), std::string::npos);
}

}  // namespace
}  // namespace cardwright::testing
