// SPDX-License-Identifier: MIT
#include "cardwright/storage/IniFile.h"

#include <gtest/gtest.h>

#include <random>

namespace cardwright {
namespace {

using namespace std::string_literals;
using Names = std::vector<std::string_view>;

std::string ValueOf(const IniFile& file, std::u16string_view section, std::u16string_view key) {
  return std::string(file.Get(section, key).value_or("(none)"));
}

TEST(IniFileGet, MatchesNamesWhateverTheirCase) {
  const IniFile file("[Form]\r\nTéxt=1\r\n");
  EXPECT_EQ(ValueOf(IniFile("[F\xD6rm]\r\nT\xE9xt=1\r\n"), u"fÖRM", u"TÉXT"), "1");
  EXPECT_EQ(ValueOf(IniFile("[F\xD6rm]\r\nT\xE9xt=1\r\n"), u"förm", u"téxt"), "1");
  EXPECT_EQ(ValueOf(file, u"form", u"other"), "(none)");
}

TEST(IniFileGet, ReadsEachFormOfLine) {
  const struct {
    const char* bytes;
    const char* value;
  } rows[] = {
      {"[A]\nk=v\n", "v"},
      {"[A]\rk=v\r", "v"},
      {"[A]\r\nk=v", "v"},
      {"\t [ A\t] rest\r\n  k \t= \tv w \t\r\n", "v w"},
      {"[A]\r\nk=\"v\"\r\n", "\"v\""},
      {"[A]\r\nk= ' v ' \r\n", "' v '"},
      {"[A]\r\nk=v=w;x\r\n", "v=w;x"},
      {"[A]\r\nk=\r\n", ""},
      {"[A]\r\nk\r\n", "(none)"},
      {"[A]\r\n;k=v\r\n", "(none)"},
      {"[A]\r\n  ; k=v\r\n", "(none)"},
      {"k=v\r\n[A]\r\n", "(none)"},
      {"[B]\r\nk=v\r\n[A]\r\n", "(none)"},
      {"[A\r\nk=v\r\n", "(none)"},
      {"[A]\r\nk=1\r\nK=2\r\n", "1"},
      {"[A]\r\nx=1\r\n[a]\r\nk=2\r\n", "(none)"},
      {"\xEF\xBB\xBF[A]\r\nk=v\r\n", "(none)"},
      {"", "(none)"},
  };
  for (const auto& row : rows) EXPECT_EQ(ValueOf(IniFile(row.bytes), u"A", u"k"), row.value) << row.bytes;
}

TEST(IniFileGet, IgnoresBlanksAroundTheNamesAskedFor) {
  EXPECT_EQ(ValueOf(IniFile("[A]\r\nk=v\r\n"), u" A\t", u"\tk "), "v");
}

TEST(IniFileGet, TakesAnyByteInNamesAndValues) {
  const IniFile file("[\0A]\r\nk\x01\0=\0v\x7F\xFF\r\n"s);
  EXPECT_EQ(file.Get(std::u16string_view(u"\0a", 2), std::u16string_view(u"K\x01\0", 3)), "\0v\x7F\xFF"s);
}

TEST(IniFileGet, FindsNamesThatAreLongerThanMost) {
  const std::string name(5000, 'n');
  const IniFile file("[" + name + "]\r\n" + name + "=v\r\n");
  EXPECT_EQ(ValueOf(file, std::u16string(5000, u'N'), std::u16string(5000, u'N')), "v");
  EXPECT_EQ(ValueOf(file, std::u16string(4999, u'N'), std::u16string(5000, u'N')), "(none)");
}

TEST(IniFileNames, ComeInFileOrderWithRepetitions) {
  const IniFile file("[B]\r\ny=1\r\n[a]\r\n[ b ]\r\nq=1\r\n[]\r\n");
  EXPECT_EQ(file.SectionNames(), (Names{"B", "a", "b", ""}));
  EXPECT_EQ(file.KeyNames(u"b"), Names{"y"});
  EXPECT_EQ(IniFile("[A]\nb=1\n;c=2\na=3\nB=4\nfoo\n").KeyNames(u"a"), (Names{"b", "a", "B"}));
  EXPECT_TRUE(file.KeyNames(u"missing").empty());
}

TEST(IniFileSet, PutsNewEntriesWhereTheyBelong) {
  const struct {
    const char* before;
    const char* after;
  } rows[] = {
      {"", "[A]\r\nk=v\r\n"},
      {"[A]", "[A]\r\nk=v\r\n"},
      {"[B]\nx=1", "[B]\nx=1\r\n[A]\r\nk=v\r\n"},
      {"[A]\nx=1\n\n\n[B]\n", "[A]\nx=1\nk=v\r\n\n\n[B]\n"},
      {"[A]\nx=1\n\n; of B\n[B]\n", "[A]\nx=1\nk=v\r\n\n; of B\n[B]\n"},
      {"[A]\n; of A\n\n[B]\n", "[A]\n; of A\nk=v\r\n\n[B]\n"},
      {"[A]\n\n[B]\n", "[A]\nk=v\r\n\n[B]\n"},
      {"[A]\nx=1\nsecond line\n[B]\n", "[A]\nx=1\nsecond line\nk=v\r\n[B]\n"},
      {"[A]\nx=1\n[B]\n[A]\ny=1\n", "[A]\nx=1\nk=v\r\n[B]\n[A]\ny=1\n"},
  };
  for (const auto& row : rows) {
    IniFile file(row.before);
    EXPECT_TRUE(file.Set(u"A", u"k", u"v"));
    EXPECT_EQ(file.Bytes(), row.after) << row.before;
  }
}

TEST(IniFileSet, KeepsEverythingButTheValueOfAnExistingKey) {
  IniFile file("; top\n\n[A]\r\n\tKey =  old \nx=1\r\n[a]\r\nkey=2");
  EXPECT_TRUE(file.Set(u"A", u"KEY", u" new"));
  EXPECT_EQ(file.Bytes(), "; top\n\n[A]\r\n\tKey = new\nx=1\r\n[a]\r\nkey=2");
  EXPECT_FALSE(file.Set(u"a", u"key", u" new"));
}

TEST(IniFileSet, GivesTheLastLineNoEndWhenItsValueChanges) {
  IniFile file("[A]\r\nk=1");
  file.Set(u"A", u"k", u"2");
  EXPECT_EQ(file.Bytes(), "[A]\r\nk=2");
  file.Set(u"A", u"l", u"3");
  EXPECT_EQ(file.Bytes(), "[A]\r\nk=2\r\nl=3\r\n");
}

TEST(IniFileSet, WritesAValueWithALineBreakAsItStands) {
  IniFile file;
  file.Set(u"A", u"k", u"one\r\ntwo");
  file.Set(u"A", u"l", u"3");
  EXPECT_EQ(file.Bytes(), "[A]\r\nk=one\r\ntwo\r\nl=3\r\n");
  EXPECT_EQ(ValueOf(file, u"A", u"k"), "one");
  file.Set(u"A", u"k", u"x\r\n[B]\r\nm=1");
  EXPECT_EQ(file.Bytes(), "[A]\r\nk=x\r\n[B]\r\nm=1\r\ntwo\r\nl=3\r\n");
  EXPECT_EQ(ValueOf(file, u"B", u"m"), "1");
  EXPECT_EQ(ValueOf(file, u"B", u"l"), "3");
  EXPECT_EQ(ValueOf(file, u"A", u"l"), "(none)");
}

TEST(IniFileSet, WritesNamesThatCannotBeReadBack) {
  IniFile file;
  file.Set(u"A", u"x=y", u" 1");
  EXPECT_EQ(ValueOf(file, u"A", u"x"), "y= 1");
  EXPECT_EQ(ValueOf(file, u"A", u"x=y"), "(none)");
  file.Set(u"A", u";c", u"1");
  file.Set(u"A", u"[B]", u"1");
  EXPECT_EQ(file.Bytes(), "[A]\r\nx=y= 1\r\n[B]=1\r\n;c=1\r\n");
  EXPECT_EQ(file.SectionNames(), (Names{"A", "B"}));
}

TEST(IniFileSet, WritesAQuestionMarkForWhatThePageLacks) {
  IniFile file;
  file.Set(u"Ω", u"Ж", u"aλ😀b");
  EXPECT_EQ(file.Bytes(), "[?]\r\n?=a??b\r\n");
  EXPECT_EQ(ValueOf(file, u"Ω", u"Ж"), "a??b");
}

TEST(IniFileDelete, TakesTheFirstOfAName) {
  IniFile file("[A]\nk=1\n; c\nk=2\n[A]\nk=3\n");
  EXPECT_TRUE(file.DeleteKey(u"a", u"K"));
  EXPECT_EQ(file.Bytes(), "[A]\n; c\nk=2\n[A]\nk=3\n");
  EXPECT_EQ(ValueOf(file, u"A", u"k"), "2");
  EXPECT_TRUE(file.DeleteSection(u"A"));
  EXPECT_EQ(file.Bytes(), "[A]\nk=3\n");
  EXPECT_EQ(ValueOf(file, u"A", u"k"), "3");
  EXPECT_TRUE(file.DeleteSection(u"A"));
  EXPECT_EQ(file.Bytes(), "");
  EXPECT_FALSE(file.DeleteSection(u"A"));
  EXPECT_FALSE(file.DeleteKey(u"A", u"k"));
}

TEST(IniFileDelete, LeavesTheRestAsItWas) {
  IniFile file("junk\n[A]\nk=1\n[B]\n; b\nx=1\nl=2\nend");
  file.DeleteKey(u"B", u"x");
  EXPECT_EQ(file.Bytes(), "junk\n[A]\nk=1\n[B]\n; b\nl=2\nend");
  file.DeleteSection(u"A");
  EXPECT_EQ(file.Bytes(), "junk\n[B]\n; b\nl=2\nend");
  file.Set(u"A", u"k", u"2");
  EXPECT_EQ(file.Bytes(), "junk\n[B]\n; b\nl=2\nend\r\n[A]\r\nk=2\r\n");
}

TEST(IniFileAppend, JoinsALastLineWithoutEnd) {
  IniFile file("[A]\nk=1");
  EXPECT_TRUE(file.Append("2\nl=3"));
  EXPECT_EQ(file.Bytes(), "[A]\nk=12\nl=3");
  EXPECT_EQ(ValueOf(file, u"A", u"k"), "12");
  EXPECT_TRUE(file.Clear());
  EXPECT_EQ(file.Bytes(), "");
  EXPECT_TRUE(file.SectionNames().empty());
  EXPECT_FALSE(file.Clear());
}

class RandomIni {
 public:
  explicit RandomIni(unsigned seed) : m_Random(seed) {}

  std::string Bytes(std::size_t most) {
    static constexpr std::string_view kAlphabet("[]]=== ;\t\r\n\n\n\0aAbB\xE4\xC4\"", 22);
    std::string bytes;
    for (std::size_t count = Number(most); count > 0; --count) bytes += kAlphabet[Number(kAlphabet.size())];
    return bytes;
  }
  std::u16string Word(std::size_t most) {
    static constexpr std::u16string_view kAlphabet(u"aaAbBbäÄ=;[] \r\n\0", 16);
    std::u16string word;
    for (std::size_t count = Number(most + 1); count > 0; --count) {
      word += kAlphabet[Number(Number(4) == 0 ? kAlphabet.size() : 6)];
    }
    return word;
  }
  std::size_t Number(std::size_t below) { return below == 0 ? 0 : m_Random() % below; }

  bool Change(IniFile& file) {
    const std::u16string section = Word(1);
    const std::u16string key = Word(2);
    switch (Number(8)) {
      case 0: return file.DeleteSection(section);
      case 1:
      case 2: return file.DeleteKey(section, key);
      case 3: return file.Append(Bytes(6));
      default: return file.Set(section, key, Word(5));
    }
  }

 private:
  std::mt19937 m_Random;
};

void ExpectSame(const IniFile& file, const IniFile& fresh) {
  ASSERT_EQ(file.SectionNames(), fresh.SectionNames());
  for (const std::string_view section : fresh.SectionNames()) {
    const Text name = file.Page().Decode(section);
    ASSERT_EQ(file.KeyNames(name), fresh.KeyNames(name));
    for (const std::string_view key : fresh.KeyNames(name)) {
      ASSERT_EQ(file.Get(name, file.Page().Decode(key)), fresh.Get(name, file.Page().Decode(key)));
    }
  }
}

TEST(IniFileWithAnyBytes, GivesThemBackUnchanged) {
  RandomIni random(1);
  for (int round = 0; round < 3000; ++round) {
    const std::string bytes = random.Bytes(80);
    ASSERT_EQ(IniFile(bytes).Bytes(), bytes);
  }
}

TEST(IniFileWithAnyBytes, IsAfterEachChangeWhatAFreshReadingShows) {
  for (unsigned seed = 0; seed < 1500; ++seed) {
    RandomIni random(seed);
    IniFile file(random.Bytes(60));
    for (int step = 0; step < 12; ++step) {
      RandomIni again = random;
      IniFile fresh(IniFile(file).Bytes());
      random.Change(file);
      again.Change(fresh);
      ASSERT_EQ(IniFile(file).Bytes(), fresh.Bytes()) << "seed " << seed << " step " << step;
      ExpectSame(file, IniFile(fresh.Bytes()));
      if (HasFatalFailure()) FAIL() << "seed " << seed << " step " << step;
    }
  }
}

TEST(IniFileOfAnySize, KeepsItsPaceOnLongFiles) {
  IniFile file;
  for (int i = 0; i < 50000; ++i) {
    const std::u16string number(Text::FromUtf8(std::to_string(i)).View());
    file.Set(u"Section" + number.substr(0, number.size() / 2), u"Key" + number, u" 1\r\nmore");
  }
  EXPECT_EQ(file.Get(u"SECTION12", u"key12345"), "1");
  const std::string bytes = file.Bytes();
  EXPECT_EQ(IniFile(bytes).SectionNames().size(), file.SectionNames().size());
}

}  // namespace
}  // namespace cardwright
