// SPDX-License-Identifier: MIT
#include "cardwright/storage/CIni.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "automation/Printing.h"
#include "cardwright/platform/Files.h"
#include "storage/TempFolder.h"

namespace cardwright {
namespace {

using namespace std::string_literals;

Ref<CIni> OpenIni(const Text& name) {
  auto ini = MakeRef<CIni>();
  ini->SetFileName(name);
  return ini;
}

std::vector<Text> Items(const Ref<Collection>& names) {
  std::vector<Text> items;
  for (std::int32_t i = 1; i <= names->Count(); ++i) items.push_back(ToText(names->Item(i)));
  return items;
}

class CIniTest : public testing::Test {
 protected:
  Ref<CIni> With(std::string_view bytes) { return OpenIni(folder.Put("a.ini", bytes)); }
  std::string File() const { return folder.Get("a.ini"); }

  TempFolder folder;
};

using CIniFileName = CIniTest;
using CIniGetValue = CIniTest;
using CIniWriteValue = CIniTest;
using CIniSections = CIniTest;
using CIniKeys = CIniTest;
using CIniDelete = CIniTest;
using CIniReset = CIniTest;
using CIniByName = CIniTest;

TEST_F(CIniFileName, CreatesAMissingFileEmptyAtOnce) {
  const Text name = folder.Name("new.ini");
  const auto ini = OpenIni(name);
  EXPECT_EQ(ini->FileName(), name);
  EXPECT_TRUE(std::filesystem::is_regular_file(folder.File("new.ini")));
  EXPECT_EQ(folder.Get("new.ini"), "");
  EXPECT_EQ(ini->Sections()->Count(), 0);
}

TEST_F(CIniFileName, LeavesAnExistingFileAlone) {
  const auto ini = With("[A]\r\nk=v\r\n");
  EXPECT_EQ(File(), "[A]\r\nk=v\r\n");
  EXPECT_EQ(ini->FileName(), folder.Name("a.ini"));
}

TEST_F(CIniFileName, BecomesEmptyForNamesThatNameNoFile) {
  const Text names[] = {u"", u"   ", folder.Name("missing/a.ini"), folder.Name("."),
                        std::u16string_view(u"a\0b", 3)};
  for (const Text& name : names) {
    const auto ini = With("[A]\r\nk=v\r\n");
    ini->SetFileName(name);
    EXPECT_TRUE(ini->FileName().IsEmpty()) << name.ToUtf8();
    EXPECT_EQ(ErrorOf([&] { ini->GetValue(u"A", u"k"); }), 5);
    ini->WriteValue(u"A", u"k", u"w");
    ini->Reset();
    EXPECT_EQ(File(), "[A]\r\nk=v\r\n");
  }
}

TEST_F(CIniFileName, IsNeededByEveryMemberThatReports) {
  const auto ini = MakeRef<CIni>();
  EXPECT_EQ(ErrorOf([&] { ini->GetValue(u"A", u"k", 1); }), 5);
  EXPECT_EQ(ErrorOf([&] { ini->GetText(u"A", u"k"); }), 5);
  EXPECT_EQ(ErrorOf([&] { ini->Sections(); }), 5);
  EXPECT_EQ(ErrorOf([&] { ini->Keys(u"A"); }), 5);
  EXPECT_EQ(ErrorOf([&] { ini->DeleteSection(u"A"); }), 5);
  EXPECT_EQ(ErrorOf([&] { ini->DeleteKey(u"A", u"k"); }), 5);
  EXPECT_EQ(ErrorOf([&] { ini->WriteValue(u"A", u"k", 1); }), 0);
  EXPECT_EQ(ErrorOf([&] { ini->Reset(); }), 0);
}

TEST_F(CIniGetValue, GivesTextOrEmptyAndNeverANumber) {
  const auto ini = With("[A]\r\nk= 12 \r\ne=\r\n");
  const Variant value = ini->GetValue(u"a", u"K");
  EXPECT_TRUE(value.IsString());
  EXPECT_EQ(value.String(), u"12");
  EXPECT_TRUE(ini->GetValue(u"A", u"missing").IsEmpty());
  EXPECT_TRUE(ini->GetValue(u"A", u"missing", Variant(u"")).IsEmpty());
  EXPECT_TRUE(ini->GetValue(u"missing", u"k", Variant()).IsEmpty());
  EXPECT_TRUE(ini->GetValue(u"A", u"e", Variant(u"default")).IsEmpty());
}

TEST_F(CIniGetValue, ConvertsTheDefaultToText) {
  const auto ini = With("");
  EXPECT_EQ(ini->GetValue(u"A", u"k", Variant(5)).String(), u"5");
  EXPECT_EQ(ini->GetValue(u"A", u"k", Variant(true)).String(), u"True");
  EXPECT_EQ(ini->GetValue(u"A", u"k", Variant(u"1,5")).String(), u"1.5");
  EXPECT_EQ(ErrorOf([&] { ini->GetValue(u"A", u"k", Variant::Null()); }), 94);
}

TEST_F(CIniGetValue, TurnsCommaIntoPointInNumbersOnly) {
  const struct {
    const char* stored;
    const char16_t* read;
  } rows[] = {
      {"0,25", u"0.25"},     {"-1,5", u"-1.5"},   {"abc,def", u"abc,def"}, {"1,234,567", u"1.234.567"},
      {"12, 13", u"12, 13"}, {"1,2 m", u"1,2 m"}, {"3.5", u"3.5"},         {"1,2,x", u"1,2,x"},
      {"1,5E3", u"1.5E3"},   {"2E5,7", u"2E5,7"}, {"2d5,7", u"2d5,7"},     {"&H1,2", u"&H1,2"},
  };
  for (const char16_t* locale : {u"en-US", u"it-IT", u"de-CH"}) {
    const InLocale selected(locale);
    for (const auto& row : rows) {
      EXPECT_EQ(ToText(With(std::string("[A]\r\nk=") + row.stored)->GetValue(u"A", u"k")), row.read)
          << Text(locale).ToUtf8() << " " << row.stored;
    }
  }
}

TEST_F(CIniGetValue, CutsAValueTo8191Characters) {
  const auto ini = With("[A]\r\na=" + std::string(8191, 'x') + "\r\nb=" + std::string(8192, 'y') +
                        "\r\nc=" + std::string(100000, '1') + "\r\n");
  EXPECT_EQ(ini->GetValue(u"A", u"a").String().Size(), 8191u);
  EXPECT_EQ(ini->GetValue(u"A", u"b").String(), std::u16string(8191, u'y'));
  EXPECT_EQ(ini->GetValue(u"A", u"c").String().Size(), 8191u);
  EXPECT_EQ(ini->GetValue(u"A", u"d", Variant(std::u16string(9000, u'd').c_str())).String().Size(), 8191u);
}

TEST_F(CIniGetValue, HasATwinForTextWithTheSameResults) {
  const auto ini = With("[A]\r\nk=1,5\r\ne=\r\n");
  EXPECT_EQ(ini->GetText(u"a", u"K", u"x"), u"1.5");
  EXPECT_EQ(ini->GetText(u"A", u"e", u"x"), u"");
  EXPECT_EQ(ini->GetText(u"A", u"n", u"2,5"), u"2.5");
  EXPECT_EQ(ini->GetText(u"A", u"n"), u"");
}

TEST_F(CIniGetValue, ReadsAFileThatIsGoneAsEmpty) {
  const auto ini = With("[A]\r\nk=v\r\n");
  EXPECT_EQ(ini->GetText(u"A", u"k"), u"v");
  std::filesystem::remove(folder.File("a.ini"));
  EXPECT_TRUE(ini->GetValue(u"A", u"k").IsEmpty());
  EXPECT_EQ(ini->Sections()->Count(), 0);
  EXPECT_FALSE(ini->DeleteSection(u"A"));
  ini->WriteValue(u"A", u"k", u"w");
  ini->Reset();
  EXPECT_FALSE(std::filesystem::exists(folder.File("a.ini")));
}

TEST_F(CIniWriteValue, StoresEachTypeInItsForm) {
  const struct {
    Variant value;
    const char* line;
  } rows[] = {
      {12, "k= 12"},
      {std::int16_t{-3}, "k=-3"},
      {std::uint8_t{7}, "k= 7"},
      {3.5, "k= 3.5"},
      {-3.5, "k=-3.5"},
      {0.25, "k= .25"},
      {-0.5F, "k=-.5"},
      {Currency{12500}, "k= 1.25"},
      {Decimal{.low = 5}, "k= 5"},
      {true, "k=1"},
      {false, "k=0"},
      {u"3,5", "k=3,5"},
      {u" as it stands ", "k= as it stands "},
      {u"", "k="},
      {Date{36526}, "k=01/01/2000"},
  };
  const InLocale italian(u"it-IT");
  for (const auto& row : rows) {
    const auto ini = With("");
    ini->WriteValue(u"A", u"k", row.value);
    EXPECT_EQ(File(), std::string("[A]\r\n") + row.line + "\r\n");
  }
}

TEST_F(CIniWriteValue, IsReadBackAtOnceByEveryObject) {
  const auto writer = With("");
  const auto reader = OpenIni(folder.Name("a.ini"));
  for (std::int32_t i = 0; i < 50; ++i) {
    writer->WriteValue(u"A", u"k", i);
    ASSERT_EQ(reader->GetText(u"A", u"k"), ToText(i));
    ASSERT_EQ(File(), "[A]\r\nk= " + std::to_string(i) + "\r\n");
  }
  writer->WriteValue(u"A", u"k", u"3,5");
  EXPECT_EQ(reader->GetText(u"A", u"k"), u"3.5");
}

TEST_F(CIniWriteValue, DoesNothingWhereItCannotWrite) {
  const auto ini = With("[A]\r\nk=v\r\n");
  ini->WriteValue(u"A", u"", u"x");
  ini->WriteValue(u"A", u"k", Variant());
  ini->WriteValue(u"A", u"k", Variant::Null());
  ini->WriteValue(u"A", u"k", Variant::Nothing());
  ini->WriteValue(u"A", u"k", Variant(Array::FromTexts({})));
  EXPECT_EQ(File(), "[A]\r\nk=v\r\n");
}

TEST_F(CIniWriteValue, FollowsAValueByReference) {
  const auto ini = With("");
  Variant held(5);
  ini->WriteValue(u"A", u"k", Variant::ByRef(held));
  EXPECT_EQ(File(), "[A]\r\nk= 5\r\n");
  held = Variant();
  ini->WriteValue(u"A", u"k", Variant::ByRef(held));
  EXPECT_EQ(File(), "[A]\r\nk= 5\r\n");
}

TEST_F(CIniWriteValue, DoesNotTestTheSection) {
  const auto ini = With("");
  ini->WriteValue(u"", u"k", u"v");
  EXPECT_EQ(File(), "[]\r\nk=v\r\n");
  EXPECT_EQ(ini->GetText(u"", u"k"), u"v");
}

TEST_F(CIniWriteValue, KeepsCommentsAndOddLinesByteByByte) {
  const std::string before =
      "\xFF\xFEjunk\n; c1\r\n\n[A]\n;c2\nk=old\r[B] x\r\n=\r\n\0\r\n  l = 1 \n[SCRIPT]\r\nx = 1"s;
  const auto ini = With(before);
  ini->WriteValue(u"a", u"K", u"new");
  std::string after = before;
  after.replace(after.find("old"), 3, "new");
  EXPECT_EQ(File(), after);
}

TEST_F(CIniWriteValue, TakesLongValuesAndNulCharacters) {
  const auto ini = With("");
  ini->WriteValue(u"A", u"long", std::u16string(100000, u'x').c_str());
  ini->WriteValue(u"A", u"nul", Variant(std::u16string_view(u"a\0b", 3)));
  EXPECT_EQ(File(), "[A]\r\nlong=" + std::string(100000, 'x') + "\r\nnul=a\0b\r\n"s);
  EXPECT_EQ(ini->GetText(u"A", u"long").Size(), 8191u);
  EXPECT_EQ(ini->GetText(u"A", u"nul"), std::u16string_view(u"a\0b", 3));
}

TEST_F(CIniWriteValue, LeavesAReadOnlyFileAlone) {
  const auto ini = With("[A]\r\nk=v\r\n");
  ::chmod(folder.File("a.ini").c_str(), 0444);
  ini->WriteValue(u"A", u"k", u"w");
  ini->Reset();
  EXPECT_FALSE(ini->DeleteKey(u"A", u"k"));
  EXPECT_FALSE(ini->DeleteSection(u"A"));
  EXPECT_EQ(File(), "[A]\r\nk=v\r\n");
  EXPECT_EQ(ini->GetText(u"A", u"k"), u"v");
}

TEST_F(CIniWriteValue, LeavesTheFileOfAFolderThatTakesNoneAlone) {
  const auto ini = OpenIni(u"/proc/self/comm");  // may be written, but not replaced, by anybody
  ASSERT_FALSE(ini->FileName().IsEmpty());
  const std::string before = *ReadFile("/proc/self/comm");
  ini->WriteValue(u"A", u"k", u"v");
  EXPECT_TRUE(ini->GetValue(u"A", u"k").IsEmpty());
  EXPECT_EQ(*ReadFile("/proc/self/comm"), before);
}

TEST_F(CIniSections, ComeInFileOrderWithoutBlankNames) {
  const auto ini = With("[B]\r\n[ a ]\r\n[]\r\n[  ]\r\n[B]\r\n");
  EXPECT_EQ(Items(ini->Sections()), (std::vector<Text>{u"B", u"a", u"B"}));
  EXPECT_EQ(With("")->Sections()->Count(), 0);
}

TEST_F(CIniSections, AreCutWhereTheyPass8190Characters) {
  // 819 names of 9 characters and their ends make 8190.
  std::string bytes;
  for (int i = 0; i < 819; ++i) bytes += "[s" + std::to_string(10000000 + i) + "]\r\n";
  EXPECT_EQ(With(bytes)->Sections()->Count(), 819);

  const auto names = Items(With(bytes + "[x]\r\n")->Sections());
  ASSERT_EQ(names.size(), 819u);
  EXPECT_EQ(names.back(), u"s10000818   ");  // 8189 characters are kept, and the buffer's blanks after them
  EXPECT_EQ(names.front(), u"s10000000");
}

TEST_F(CIniKeys, AreCutWhereTheyPass8191Characters) {
  std::string bytes = "[A]\r\n";
  for (int i = 0; i < 818; ++i) bytes += "s" + std::to_string(10000000 + i) + "=1\r\n";
  const auto fits = With(bytes + "0123456789=1\r\n");  // 8180 and 11 characters
  EXPECT_EQ(fits->Keys(u"A")->Count(), 819);
  EXPECT_EQ(Items(fits->Keys(u"A")).back(), u"0123456789");

  const auto names = Items(With(bytes + "0123456789a=1\r\n")->Keys(u"A"));
  ASSERT_EQ(names.size(), 819u);
  EXPECT_EQ(names.back(), u"0123456789  ");
}

TEST_F(CIniKeys, OfAMissingSectionAreNone) {
  const auto ini = With("[A]\r\nx=1\r\n;y=2\r\nz\r\nX=3\r\n[E]\r\n");
  EXPECT_EQ(Items(ini->Keys(u"a")), (std::vector<Text>{u"x", u"X"}));
  EXPECT_EQ(ini->Keys(u"E")->Count(), 0);
  EXPECT_EQ(ini->Keys(u"missing")->Count(), 0);
  EXPECT_EQ(ErrorOf([&] { ini->Keys(u""); }), 5);
  EXPECT_EQ(ErrorOf([&] { ini->Keys(u"  "); }), 5);
}

TEST_F(CIniKeys, HaveNoKeysInTheCollection) {
  const auto names = With("[A]\r\nx=1\r\n")->Keys(u"A");
  EXPECT_EQ(names->Find(u"x"), nullptr);
}

TEST_F(CIniDelete, AnswersTrueForWhatIsNotThere) {
  const auto ini = With("[A]\r\nk=v\r\n");
  EXPECT_TRUE(ini->DeleteKey(u"A", u"missing"));
  EXPECT_TRUE(ini->DeleteSection(u"missing"));
  EXPECT_EQ(File(), "[A]\r\nk=v\r\n");
  EXPECT_TRUE(ini->DeleteKey(u"a", u"K"));
  EXPECT_EQ(File(), "[A]\r\n");
  EXPECT_TRUE(ini->DeleteSection(u"a"));
  EXPECT_EQ(File(), "");
}

TEST_F(CIniDelete, NeedsItsNames) {
  const auto ini = With("[A]\r\nk=v\r\n");
  EXPECT_EQ(ErrorOf([&] { ini->DeleteSection(u""); }), 5);
  EXPECT_EQ(ErrorOf([&] { ini->DeleteKey(u"", u"k"); }), 5);
  EXPECT_EQ(ErrorOf([&] { ini->DeleteKey(u"A", u""); }), 5);
}

TEST_F(CIniReset, EmptiesTheFileAndCreatesNone) {
  const auto ini = With("[A]\r\nk=v\r\n");
  ini->Reset();
  EXPECT_EQ(File(), "");
  EXPECT_TRUE(ini->GetValue(u"A", u"k").IsEmpty());
  std::filesystem::remove(folder.File("a.ini"));
  ini->Reset();
  EXPECT_FALSE(std::filesystem::exists(folder.File("a.ini")));
}

TEST_F(CIniByName, ReachesEveryMember) {
  const auto ini = MakeRef<CIni>();
  const std::vector<Text> members = {u"FileName", u"GetValue",      u"WriteValue", u"Sections",
                                     u"Keys",     u"DeleteSection", u"DeleteKey",  u"Reset"};
  EXPECT_EQ(ini->MemberNames(), members);
  EXPECT_EQ(ini->TypeName(), u"CIni");

  LetProperty(*ini, u"filename", folder.Put("a.ini", ""));
  EXPECT_EQ(ToText(GetProperty(*ini, u"FileName")), folder.Name("a.ini"));
  CallMethod(*ini, u"WRITEVALUE", {u"A", u"k", true});
  EXPECT_EQ(ToText(CallMethod(*ini, u"GetValue", {u"A", u"k"})), u"1");
  EXPECT_EQ(ToText(CallMethod(*ini, u"GetValue", {u"A", u"n", 7})), u"7");
  EXPECT_TRUE(CallMethod(*ini, u"GetValue", {u"A", u"n", Variant::Missing()}).IsEmpty());
  EXPECT_EQ(ToLong(GetProperty(RequireObject(GetProperty(*ini, u"Sections")), u"Count")), 1);
  EXPECT_EQ(ToLong(GetProperty(RequireObject(GetProperty(*ini, u"Keys", {u"A"})), u"Count")), 1);
  EXPECT_TRUE(ToBoolean(CallMethod(*ini, u"DeleteKey", {u"A", u"k"})));
  EXPECT_TRUE(ToBoolean(CallMethod(*ini, u"DeleteSection", {u"A"})));
  CallMethod(*ini, u"Reset");
  EXPECT_EQ(File(), "");
}

}  // namespace
}  // namespace cardwright
