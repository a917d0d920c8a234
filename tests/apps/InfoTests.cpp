// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "RunProgram.h"

namespace cardwright::testing {
namespace {

using ::testing::HasSubstr;

TEST(Info, ShowsTheFormItsControlsAndItsProcedures) {
  const Outcome info = Cardwright({"info", ExampleForm()});
  EXPECT_EQ(info.status, 0);
  EXPECT_THAT(info.out, HasSubstr("CForm Form\n  Text             Well inspection\n"));
  EXPECT_THAT(info.out, HasSubstr("ThemeName        wells\n"));
  EXPECT_THAT(info.out, HasSubstr("CTextBox txtDepth in object_"));
  EXPECT_THAT(info.out, HasSubstr("InputType        Float\n"));
  EXPECT_THAT(info.out, HasSubstr("Stacking Form, lblTitle, fraIdentification,"));
  EXPECT_THAT(info.out, HasSubstr("Script VBScript\n"));
  EXPECT_THAT(info.out, HasSubstr("Form_Initialize"));
}

TEST(Info, PrintsTheSameAsJson) {
  const Outcome info = Cardwright({"info", ExampleForm(), "--json"});
  EXPECT_EQ(info.status, 0);
  EXPECT_EQ(info.out.front(), '{');
  EXPECT_THAT(info.out, HasSubstr("\"class\": \"CCheckBox\""));
  EXPECT_THAT(info.out, HasSubstr("\"language\": \"VBScript\""));
  EXPECT_THAT(info.out, HasSubstr("\"stacking\": ["));
  EXPECT_THAT(info.out, HasSubstr("\"gridStep\": 8"));
}

TEST(Info, ShowsAnEmptyFileAsAnEmptyForm) {
  const TempFolder folder;
  const Outcome info = Cardwright({"info", folder.Write("leer è.cwf", "")});
  EXPECT_EQ(info.status, 0);
  EXPECT_THAT(info.out, HasSubstr("Script none"));
}

TEST(Info, LeavesTheProjectUnchanged) {
  const TempFolder folder;
  const std::string form = folder.Copy("examples/wells/well-inspection.cwf");
  const std::string before = ReadAll(form);
  EXPECT_EQ(Cardwright({"info", form}).status, 0);
  EXPECT_EQ(ReadAll(form), before);
}

}  // namespace
}  // namespace cardwright::testing
