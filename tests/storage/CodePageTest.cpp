// SPDX-License-Identifier: MIT
#include "cardwright/storage/CodePage.h"

#include <gtest/gtest.h>

#include <thread>

#include "automation/Printing.h"

namespace cardwright {
namespace {

/// Selects a page for one test and the standard one after it.
class SelectedPage {
 public:
  explicit SelectedPage(std::string_view name) : isKnown(CodePage::Select(name)) {}
  ~SelectedPage() { CodePage::Select("windows-1252"); }
  const bool isKnown;
};

std::string AllBytes() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

class EveryCodePage : public testing::TestWithParam<std::string_view> {};

TEST_P(EveryCodePage, TakesAllBytesThroughUnchanged) {
  const SelectedPage page(GetParam());
  ASSERT_TRUE(page.isKnown);
  EXPECT_EQ(CodePage::Current().Name(), GetParam());
  const Text text = CodePage::Current().Decode(AllBytes());
  EXPECT_EQ(text.Size(), 256u);
  EXPECT_EQ(CodePage::Current().Encode(text), AllBytes());
  EXPECT_FALSE(CodePage::Current().FirstLost(text));
}

INSTANTIATE_TEST_SUITE_P(Pages, EveryCodePage, testing::ValuesIn(CodePage::Names()), [](const auto& page) {
  std::string name(page.param);
  std::erase(name, '-');
  return name;
});

TEST(CodePageCurrent, IsWindows1252UntilAnotherIsSelected) {
  EXPECT_EQ(CodePage::Current().Name(), "windows-1252");
  EXPECT_EQ(CodePage::Current().Decode("\x80\x9F\xE9"), u"\u20AC\u0178\u00E9");
}

TEST(CodePageCurrent, MapsUndefinedBytesToControls) {
  EXPECT_EQ(CodePage::Current().Decode("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D");
}

TEST(CodePageSelect, TakesNamesInAnyCaseAndShortForms) {
  for (const char* name : {"WINDOWS-1250", "cp1250", "Cp1250"}) {
    const SelectedPage page(name);
    EXPECT_TRUE(page.isKnown) << name;
    EXPECT_EQ(CodePage::Current().Name(), "windows-1250") << name;
  }
}

TEST(CodePageSelect, RefusesUnknownNamesAndKeepsThePage) {
  const SelectedPage page("windows-1251");
  for (const char* name : {"utf-8", "", "windows-1255", "windows-12522"}) {
    EXPECT_FALSE(CodePage::Select(name)) << name;
    EXPECT_EQ(CodePage::Current().Name(), "windows-1251") << name;
  }
}

TEST(CodePageSelect, HoldsForTheCallingThreadOnly) {
  const SelectedPage page("windows-1251");
  std::string_view other;
  std::thread([&] { other = CodePage::Current().Name(); }).join();
  EXPECT_EQ(other, "windows-1252");
}

TEST(CodePageDecode, ReadsTheLettersOfEachPage) {
  const struct {
    const char* page;
    const char* bytes;
    const char16_t* text;
  } rows[] = {
      {"windows-1250", "\x8A\xF9", u"Šů"}, {"windows-1251", "\xC6\xFF", u"Жя"},
      {"windows-1253", "\xE1\xD9", u"αΩ"}, {"windows-1254", "\xDD\xFE", u"İş"},
      {"windows-1257", "\xE0\xEB", u"ąė"}, {"iso-8859-1", "\x80\xA4", u"\u0080¤"},
      {"iso-8859-15", "\xA4\xBD", u"€œ"},
  };
  for (const auto& row : rows) {
    const SelectedPage page(row.page);
    EXPECT_EQ(CodePage::Current().Decode(row.bytes), row.text) << row.page;
  }
}

TEST(CodePageEncode, WritesAQuestionMarkForEachCharacterThatIsLost) {
  const CodePage& page = CodePage::Current();
  EXPECT_EQ(page.Encode(u"aΩb"), "a?b");
  EXPECT_EQ(page.Encode(u"😀!"), "?!");
  EXPECT_EQ(page.Encode(u"\xD83D"
                        u"x"),
            "?x");
  EXPECT_EQ(page.Encode(u"x\xDE00"), "x?");
  EXPECT_EQ(page.Encode(std::u16string_view(u"a\0b", 3)), std::string("a\0b", 3));
}

TEST(CodePageFirstLost, GivesThePositionOfTheFirstLoss) {
  const CodePage& page = CodePage::Current();
  EXPECT_EQ(page.FirstLost(u"abcΩΩ"), 3u);
  EXPECT_EQ(page.FirstLost(u"😀"), 0u);
  EXPECT_FALSE(page.FirstLost(u"Größe 5 €"));
  EXPECT_FALSE(page.FirstLost(u""));
  EXPECT_TRUE(page.CanEncode(u'€'));
  EXPECT_FALSE(page.CanEncode(u'Ω'));
}

}  // namespace
}  // namespace cardwright
