// SPDX-License-Identifier: MIT
#include "cardwright/storage/ProjectFile.h"

#include <gtest/gtest.h>

#include "automation/Printing.h"
#include "storage/TempFolder.h"

namespace cardwright {
namespace {

class ProjectFileTest : public testing::Test {
 protected:
  Text Project(std::string_view bytes) { return folder.Put("p.frm", bytes); }
  std::string File() const { return folder.Get("p.frm"); }
  Text Missing() const { return folder.Name("missing.frm"); }

  TempFolder folder;
};

using FormImageTest = ProjectFileTest;
using ShowMenuTest = ProjectFileTest;

std::string ImageSection(int count, const std::function<std::string(int)>& value) {
  std::string bytes = "[FORM_IMAGE]\r\n";
  for (int i = 0; i < count; ++i) bytes += "p" + std::to_string(i) + "=" + value(i) + "\r\n";
  return bytes;
}

TEST_F(FormImageTest, ReadsPixelsFromTheBottomRowUp) {
  const auto picture =
      GetFormImage(Project(ImageSection(256, [](int i) { return " " + std::to_string(i + 1); })));
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->Width(), 16);
  EXPECT_EQ(picture->Height(), 16);
  EXPECT_EQ(picture->Pixels().front(), 1);
  EXPECT_EQ(picture->Pixels().back(), 256);
}

TEST_F(FormImageTest, ExistsWhereTheColoursSumUpToZeroOrMore) {
  EXPECT_FALSE(GetFormImage(Missing()));
  EXPECT_FALSE(GetFormImage(u""));
  EXPECT_FALSE(GetFormImage(Project("[FORM]\r\n")));
  EXPECT_FALSE(GetFormImage(Project(ImageSection(256, [](int i) { return i == 0 ? "-1" : "0"; }))));

  const auto black = GetFormImage(Project(ImageSection(256, [](int) { return "0"; })));
  ASSERT_TRUE(black);
  EXPECT_EQ(black->Pixels(), std::vector<OleColor>(256, 0));

  const auto white = GetFormImage(Project(ImageSection(256, [](int) { return "16777215"; })));
  ASSERT_TRUE(white);
  EXPECT_EQ(white->Pixels(), std::vector<OleColor>(256, 0xFFFFFF));

  const auto mixed = GetFormImage(Project(ImageSection(256, [](int i) { return i == 3 ? "-1" : "1"; })));
  ASSERT_TRUE(mixed);
  EXPECT_EQ(mixed->Pixels()[3], 0xFFFFFF);
  EXPECT_EQ(mixed->Pixels()[4], 1);
}

TEST_F(FormImageTest, CountsPixelsThatAreMissingAsMinusOne) {
  const auto picture = GetFormImage(Project(ImageSection(1, [](int) { return "255"; })));
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->Pixels()[0], 255);
  EXPECT_EQ(picture->Pixels()[1], 0xFFFFFF);
  EXPECT_FALSE(GetFormImage(Project(ImageSection(1, [](int) { return "254"; }))));
}

TEST_F(FormImageTest, HasNoneWhereAColourIsNoNumberOf32Bits) {
  EXPECT_FALSE(GetFormImage(Project(ImageSection(256, [](int) { return "4294967295"; }))));
}

TEST_F(ShowMenuTest, IsTrueForANumberThatIsNotZero) {
  const struct {
    const char* bytes;
    bool isShown;
  } rows[] = {
      {"[FORM]\r\nShowMenu= 1\r\n", true},
      {"[FORM]\r\nShowMenu= 0\r\n", false},
      {"[form]\r\nshowmenu=-1\r\n", true},
      {"[FORM]\r\nText=x\r\n", false},
      {"[FORM]\r\nShowMenu=\r\n", false},
      {"[FORM]\r\nShowMenu=no\r\n", false},
      {"", false},
  };
  for (const auto& row : rows) EXPECT_EQ(GetShowMenu(Project(row.bytes)), row.isShown) << row.bytes;
  EXPECT_FALSE(GetShowMenu(Missing()));
  EXPECT_FALSE(GetShowMenu(u""));
}

TEST_F(ShowMenuTest, IsWrittenAsANumber) {
  const Text name = Project("[FORM]\r\nText=x\r\n[SCRIPT]\r\nVBScript\r\n");
  SetShowMenu(name, true);
  EXPECT_EQ(File(), "[FORM]\r\nText=x\r\nShowMenu= 1\r\n[SCRIPT]\r\nVBScript\r\n");
  EXPECT_TRUE(GetShowMenu(name));
  SetShowMenu(name, false);
  EXPECT_EQ(File(), "[FORM]\r\nText=x\r\nShowMenu= 0\r\n[SCRIPT]\r\nVBScript\r\n");
  SetShowMenu(Missing(), true);
  SetShowMenu(u"", true);
  EXPECT_FALSE(std::filesystem::exists(folder.File("missing.frm")));
}

}  // namespace
}  // namespace cardwright
