#include "cardwright/storage/ProjectFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <numeric>

#include "automation/Printing.h"
#include "cardwright/storage/CIni.h"
#include "cardwright/storage/CodePage.h"
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

using ReadScriptSectionTest = ProjectFileTest;
using WriteScriptSectionTest = ProjectFileTest;
using FormImageTest = ProjectFileTest;
using ShowMenuTest = ProjectFileTest;

std::string ImageSection(int count, const std::function<std::string(int)>& value) {
  std::string bytes = "[FORM_IMAGE]\r\n";
  for (int i = 0; i < count; ++i) bytes += "p" + std::to_string(i) + "=" + value(i) + "\r\n";
  return bytes;
}

Ref<Picture> Ramp(int width, int height) {
  std::vector<OleColor> pixels(static_cast<std::size_t>(width * height));
  std::iota(pixels.begin(), pixels.end(), 1);
  return MakeRef<Picture>(width, height, pixels);
}

TEST_F(ReadScriptSectionTest, GivesAllBehindTheFirstMarker) {
  const struct {
    const char* bytes;
    const char16_t* script;
  } rows[] = {
      {"[FORM]\r\nText=x\r\n[SCRIPT]\r\nVBScript\r\nx = 1\r\n", u"VBScript\r\nx = 1\r\n"},
      {"[script]\r\nVBScript\r\n", u"VBScript\r\n"},
      {"[SCRIPT]\nVBScript\n", u""},
      {"[FORM]\r\nText=x\r\n", u""},
      {"", u""},
      {"[SCRIPT]\r\n", u""},
      {"[FORM]\r\nText=[SCRIPT]\r\nShowMenu= 1\r\n[SCRIPT]\r\nJScript\r\n",
       u"ShowMenu= 1\r\n[SCRIPT]\r\nJScript\r\n"},
      {"[SCRIPT]\r\n\x80\xE9\xFF", u"€éÿ"},
  };
  for (const auto& row : rows) EXPECT_EQ(ReadScriptSection(Project(row.bytes)), row.script) << row.bytes;
}

TEST_F(ReadScriptSectionTest, IsEmptyForAMissingFile) {
  EXPECT_EQ(ReadScriptSection(u""), u"");
  EXPECT_EQ(ReadScriptSection(Missing()), u"");
  EXPECT_EQ(ReadScriptSection(folder.Name(".")), u"");
}

TEST_F(WriteScriptSectionTest, AppendsTheTailToAFileThatIsThere) {
  WriteScriptSection(Project("[FORM]\r\nText=x\r\n"), u"VBScript", u"x = \"€\"");
  EXPECT_EQ(File(), "[FORM]\r\nText=x\r\n[SCRIPT]\r\nVBScript\r\nx = \"\x80\"\r\n");
  WriteScriptSection(Missing(), u"VBScript", u"x");
  WriteScriptSection(u"", u"VBScript", u"x");
  EXPECT_FALSE(std::filesystem::exists(folder.File("missing.frm")));
}

TEST_F(WriteScriptSectionTest, GrowsAScriptByOneLineEndWithEachCycle) {
  Text content = u"x = 1";
  for (int cycle = 0; cycle < 3; ++cycle) {
    const Text name = Project("");
    WriteScriptSection(name, u"VBScript", content);
    Text language;
    const Text read = SplitFirstLine(ReadScriptSection(name), language);
    EXPECT_EQ(language, u"VBScript");
    EXPECT_EQ(read, content + u"\r\n");
    content = read;
  }
}

TEST_F(WriteScriptSectionTest, LeavesAReadOnlyFileAlone) {
  const Text name = Project("[FORM]\r\n");
  ::chmod(folder.File("p.frm").c_str(), 0444);
  WriteScriptSection(name, u"VBScript", u"x");
  EXPECT_EQ(File(), "[FORM]\r\n");
}

TEST(SplitFirstLine, PartsTheLanguageFromTheScript) {
  const struct {
    const char16_t* text;
    const char16_t* first;
    const char16_t* rest;
  } rows[] = {
      {u"VBScript\r\nx = 1\r\n", u"VBScript", u"x = 1\r\n"},
      {u"VBScript\nx = 1", u"VBScript", u"x = 1"},
      {u"VBScript\rx = 1", u"VBScript", u"x = 1"},
      {u"VBScript\r\r\nx", u"VBScript", u"x"},
      {u"VBScript\r\n\r\nx", u"VBScript", u"\r\nx"},
      {u"VBScript\n\nx", u"VBScript", u"x"},
      {u"a\nb\rc", u"ab", u"c"},
      {u"\r\nx", u"", u"x"},
      {u"no line end", u"", u"no line end"},
      {u"", u"", u""},
  };
  for (const auto& row : rows) {
    Text first = u"before";
    EXPECT_EQ(SplitFirstLine(row.text, first), row.rest);
    EXPECT_EQ(first, row.first);
  }
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

TEST_F(FormImageTest, IsThereWhereTheColoursSumUpToZeroOrMore) {
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

TEST_F(FormImageTest, IsReadBackAsSavedAndReplacesTheOneBefore) {
  const Text name = Project("[FORM]\r\nText=x\r\n");
  SaveFormImage(name, Ramp(20, 20).get());
  SaveFormImage(name, Ramp(16, 16).get());
  EXPECT_EQ(GetFormImage(name)->Pixels(), Ramp(16, 16)->Pixels());
  auto ini = MakeRef<CIni>();
  ini->SetFileName(name);
  EXPECT_EQ(ini->Keys(u"FORM_IMAGE")->Count(), 256);
  EXPECT_TRUE(File().starts_with("[FORM]\r\nText=x\r\n[FORM_IMAGE]\r\np0= 1\r\np1= 2\r\n"));
  SaveFormImage(name, nullptr);
  EXPECT_EQ(File(), "[FORM]\r\nText=x\r\n");
}

TEST_F(FormImageTest, IsNotSavedToAFileThatIsMissingOrReadOnly) {
  SaveFormImage(Missing(), Ramp(16, 16).get());
  SaveFormImage(u"", Ramp(16, 16).get());
  EXPECT_FALSE(std::filesystem::exists(folder.File("missing.frm")));
  const Text name = Project("[FORM]\r\n");
  ::chmod(folder.File("p.frm").c_str(), 0444);
  SaveFormImage(name, Ramp(16, 16).get());
  EXPECT_EQ(File(), "[FORM]\r\n");
}

TEST(MakeBitmap, NeedsAColourForEachPixel) {
  const std::vector<OleColor> colors = {1, 2, 3, 4, 5, static_cast<OleColor>(0x80000012)};
  EXPECT_FALSE(MakeBitmap(4, 2, colors));
  EXPECT_FALSE(MakeBitmap(0, 2, colors));
  EXPECT_FALSE(MakeBitmap(2, -1, colors));
  const auto picture = MakeBitmap(3, 2, colors);
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->Pixels(), (std::vector<OleColor>{1, 2, 3, 4, 5, 0x12}));
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
