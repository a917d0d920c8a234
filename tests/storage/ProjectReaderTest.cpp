// SPDX-License-Identifier: MIT
#include "cardwright/storage/ProjectReader.h"

#include <gtest/gtest.h>

#include "automation/Printing.h"
#include "cardwright/storage/CIni.h"
#include "storage/TempFolder.h"

namespace cardwright {
namespace {

class ProjectReaderTest : public testing::Test {
 protected:
  TempFolder folder;
  Text name = folder.Put("a.ini", "[A]\r\nk=1\r\n");
};

TEST_F(ProjectReaderTest, OpensOnlyAFileThatExists) {
  EXPECT_TRUE(ProjectReader::Open(name));
  EXPECT_FALSE(ProjectReader::Open(u""));
  EXPECT_FALSE(ProjectReader::Open(folder.Name("missing.ini")));
  EXPECT_FALSE(ProjectReader::Open(folder.Name(".")));
}

TEST_F(ProjectReaderTest, KeepsTheStateThatItWasOpenedIn) {
  const auto project = ProjectReader::Open(name);
  const SectionReader section = project->Section(u"A");
  folder.Put("a.ini", "[A]\r\nk=2\r\nl=new\r\n");
  EXPECT_EQ(section.GetText(u"k"), u"1");
  const auto ini = MakeRef<CIni>();
  ini->SetFileName(name);
  EXPECT_EQ(ini->GetText(u"A", u"k"), u"2");
  ini->WriteValue(u"A", u"m", u"x");
  EXPECT_EQ(folder.Get("a.ini"), "[A]\r\nk=2\r\nl=new\r\nm=x\r\n");
  EXPECT_EQ(section.GetText(u"k"), u"1");
  EXPECT_EQ(section.Find(u"m"), std::nullopt);
  EXPECT_EQ(ProjectReader::Open(name)->Section(u"A").GetText(u"m"), u"x");
}

TEST_F(ProjectReaderTest, IsLeftAloneByChangesOfTheFile) {
  const auto ini = MakeRef<CIni>();
  ini->SetFileName(name);
  const auto project = ProjectReader::Open(name);
  ini->WriteValue(u"A", u"k", u"2");
  EXPECT_EQ(project->Section(u"A").GetText(u"k"), u"1");
  EXPECT_EQ(ini->GetText(u"A", u"k"), u"2");
}

TEST_F(ProjectReaderTest, GivesValuesAsCIniDoes) {
  folder.Put("a.ini", "[A]\r\nnumber=1,5\r\nempty=\r\ntext= a,b \r\n");
  const auto project = ProjectReader::Open(name);
  const SectionReader section = project->Section(u"a");
  EXPECT_EQ(section.GetText(u"NUMBER"), u"1.5");
  EXPECT_EQ(section.GetText(u"text"), u"a,b");
  EXPECT_TRUE(section.Find(u"empty")->IsEmpty());
  EXPECT_TRUE(section.GetValue(u"empty", Variant(5)).IsEmpty());
  EXPECT_EQ(section.Find(u"missing"), std::nullopt);
  EXPECT_EQ(ToText(section.GetValue(u"missing", Variant(u"2,5"))), u"2.5");
  EXPECT_EQ(section.GetText(u"missing", u"3,5"), u"3.5");
  EXPECT_EQ(section.Keys(), (std::vector<Text>{u"number", u"empty", u"text"}));
  EXPECT_TRUE(project->Section(u"B").Keys().empty());
}

TEST_F(ProjectReaderTest, FindsTheScriptAfterTheFirstMarker) {
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
  for (const auto& row : rows)
    EXPECT_EQ(ProjectReader::Open(folder.Put("p.frm", row.bytes))->ScriptText(), row.script) << row.bytes;
}

TEST_F(ProjectReaderTest, SplitsTheScriptFromItsLanguage) {
  folder.Put("a.ini", "[SCRIPT]\r\nJScript\r\nx = 1;\r\n");
  const ProjectScript script = ProjectReader::Open(name)->Script();
  EXPECT_EQ(script.language, u"JScript");
  EXPECT_EQ(script.content, u"x = 1;\r\n");
}

TEST(SplitFirstLine, SplitsTheLanguageFromTheScript) {
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

TEST(MakeBitmap, NeedsAColourForEachPixel) {
  const std::vector<OleColor> colors = {1, 2, 3, 4, 5, static_cast<OleColor>(0x80000012)};
  EXPECT_FALSE(MakeBitmap(4, 2, colors));
  EXPECT_FALSE(MakeBitmap(0, 2, colors));
  EXPECT_FALSE(MakeBitmap(2, -1, colors));
  const auto picture = MakeBitmap(3, 2, colors);
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->Pixels(), (std::vector<OleColor>{1, 2, 3, 4, 5, 0x12}));
}

}  // namespace
}  // namespace cardwright
