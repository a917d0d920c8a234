// SPDX-License-Identifier: MIT
#include "cardwright/automation/Text.h"

#include <algorithm>

#include "automation/Printing.h"

namespace cardwright {
namespace {

TEST(Text, IsEmptyExactlyWhenItHasNoCharacters) {
  EXPECT_TRUE(Text().IsEmpty());
  EXPECT_TRUE(Text(u"").IsEmpty());
  EXPECT_FALSE(Text(u" ").IsEmpty());
  EXPECT_EQ(Text(u""), Text());
}

TEST(Text, KeepsNulCharacters) {
  const Text text(std::u16string_view(u"a\0b", 3));
  EXPECT_EQ(text.Size(), 3u);
  EXPECT_EQ(text[1], u'\0');
}

TEST(Text, AppendingToACopyLeavesTheOriginal) {
  const Text original = u"stand";
  Text copy = original;
  copy += u"still";
  EXPECT_EQ(original, u"stand");
  EXPECT_EQ(copy, u"standstill");
}

TEST(Text, AppendsItself) {
  Text text = u"ab";
  for (int i = 0; i < 6; ++i) text += text;
  EXPECT_EQ(text.Size(), 128u);
  EXPECT_EQ(text.View().substr(126), u"ab");
}

TEST(Text, GrowsByManySmallPieces) {
  Text text;
  std::u16string expected;
  for (char16_t i = 0; i < 5000; ++i) {
    const char16_t piece[] = {static_cast<char16_t>(u'A' + i % 26), 0};
    text += piece;
    expected += piece;
  }
  EXPECT_EQ(text, expected);
}

TEST(Text, MovesOnlyNowAndThenWhenItGrowsCharacterByCharacter) {
  Text text;
  const char16_t* place = nullptr;
  int moves = 0;
  for (int i = 0; i < 200000; ++i) {
    text += u"x";
    if (text.View().data() != place) ++moves;
    place = text.View().data();
  }
  EXPECT_EQ(text.Size(), 200000u);
  EXPECT_LE(moves, 20);
}

TEST(Text, IsWrittenInPlaceWhenItsSizeIsKnown) {
  const Text text = Text::OfSize(3, [](char16_t* to) { std::copy_n(u"abc", 3, to); });
  EXPECT_EQ(text, u"abc");
  EXPECT_TRUE(Text::OfSize(0, [](char16_t*) { FAIL() << "there is nothing to write"; }).IsEmpty());
}

TEST(Find, FindsTheFirstOccurrenceFromAPlaceOn) {
  EXPECT_EQ(Find(u"abcabc", u"bc"), 1u);
  EXPECT_EQ(Find(u"abcabc", u"bc", 2), 4u);
  EXPECT_EQ(Find(u"abcabc", u"bc", 5), std::u16string_view::npos);
  EXPECT_EQ(Find(u"abcabc", u"BC"), std::u16string_view::npos);
  EXPECT_EQ(Find(u"abc", u"", 3), 3u);
  EXPECT_EQ(Find(u"abc", u"", 4), std::u16string_view::npos);
  EXPECT_EQ(Find(u"", u"a"), std::u16string_view::npos);
}

TEST(Find, AgreesWithTheNaiveSearch) {
  // A small alphabet, so that parts are nearly found often; sizes on both sides of a block of places.
  unsigned random = 1;
  const auto next = [&random] { return (random = random * 1103515245 + 12345) >> 16; };
  for (int round = 0; round < 2000; ++round) {
    std::u16string text, part;
    for (unsigned i = next() % 120; i > 0; --i) text += static_cast<char16_t>(u'a' + next() % 3);
    for (unsigned i = next() % 6; i > 0; --i) part += static_cast<char16_t>(u'a' + next() % 3);
    const std::size_t from = next() % 130;
    EXPECT_EQ(Find(text, part, from), text.find(part, from));
    EXPECT_EQ(FindNoCase(ToUpper(text), part, from), text.find(part, from));
  }
}

TEST(FindNoCase, MeetsEveryCharacterThatFoldsToTheSame) {
  for (unsigned c = 1; c < 0x600; ++c) {
    const char16_t unit = static_cast<char16_t>(c);
    const char16_t lower[] = {u'一', ToLower(unit), u'一', 0};
    const char16_t self[] = {unit, 0};
    EXPECT_EQ(FindNoCase(std::u16string(40, u'一') + lower, self), 41u) << c;
  }
}

TEST(Text, SharesItsCharactersWithACopy) {
  const Text text = u"shared";
  const Text copy = text;
  EXPECT_EQ(text.View().data(), copy.View().data());
}

TEST(Text, JoinsWithPlus) { EXPECT_EQ(Text(u"a") + u"b" + Text(u"c"), u"abc"); }

struct Utf8Pair {
  std::string utf8;
  std::u16string utf16;
};

class TextUtf8 : public testing::TestWithParam<Utf8Pair> {};

TEST_P(TextUtf8, GoesBothWays) {
  EXPECT_EQ(Text::FromUtf8(GetParam().utf8), Text(GetParam().utf16));
  EXPECT_EQ(Text(GetParam().utf16).ToUtf8(), GetParam().utf8);
}

INSTANTIATE_TEST_SUITE_P(All, TextUtf8,
                         testing::Values(Utf8Pair{"", u""}, Utf8Pair{"plain", u"plain"},
                                         Utf8Pair{"\xC2\x80\xDF\xBF", u"\u0080\u07FF"},
                                         Utf8Pair{"\xE0\xA0\x80\xEF\xBF\xBD", u"\u0800\uFFFD"},
                                         Utf8Pair{"\xED\x9F\xBF\xEE\x80\x80", u"\uD7FF\uE000"},
                                         Utf8Pair{"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF",
                                                  u"\U00010000\U0010FFFF"}));

struct BadUtf8 {
  std::string bytes;
  std::u16string read;
};

class TextBadUtf8 : public testing::TestWithParam<BadUtf8> {};

TEST_P(TextBadUtf8, ReadsEachFaultAsOneReplacement) {
  EXPECT_EQ(Text::FromUtf8(GetParam().bytes), Text(GetParam().read));
}

INSTANTIATE_TEST_SUITE_P(All, TextBadUtf8,
                         testing::Values(BadUtf8{"\x80", u"\uFFFD"}, BadUtf8{"a\xFFz", u"a\uFFFDz"},
                                         BadUtf8{"\xC3", u"\uFFFD"}, BadUtf8{"\xC0\xAF", u"\uFFFD\uFFFD"},
                                         BadUtf8{"\xE2\x82z", u"\uFFFDz"},
                                         BadUtf8{"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
                                         BadUtf8{"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"}));

TEST(Text, WritesALoneSurrogateAsReplacement) {
  const char16_t alone[] = {u'a', 0xD800, u'b', 0xDC00, 0};
  EXPECT_EQ(Text(alone).ToUtf8(),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD");
}

struct CasePair {
  const char16_t* upper;
  const char16_t* lower;
};

class TextCase : public testing::TestWithParam<CasePair> {};

TEST_P(TextCase, MapsBothWays) {
  const Text upper = GetParam().upper;
  const Text lower = GetParam().lower;
  EXPECT_EQ(ToLower(upper), lower);
  EXPECT_EQ(ToUpper(lower), upper);
  EXPECT_TRUE(EqualsNoCase(upper, lower));
  EXPECT_EQ(HashNoCase(upper), HashNoCase(lower));
}

INSTANTIATE_TEST_SUITE_P(All, TextCase,
                         testing::Values(CasePair{u"AZ[@`", u"az[@`"}, CasePair{u"ÀÖØÞ×÷ß", u"àöøþ×÷ß"},
                                         CasePair{u"ĀĮĲŁŃŊŶŸŹŽ", u"āįĳłńŋŷÿźž"},
                                         CasePair{u"ΆΈΊΌΎΏΑΡΣΩΫ", u"άέίόύώαρσωϋ"},
                                         CasePair{u"ЀЏАЯѠҊӀӁӐ", u"ѐџаяѡҋӏӂӑ"},
                                         CasePair{u"漢1\u20AC", u"漢1\u20AC"}));

TEST(TextCase, TheFinalSigmaHasTheCapitalOfTheOther) {
  EXPECT_EQ(ToUpper(u'ς'), u'Σ');
  EXPECT_EQ(ToLower(u'ς'), u'ς');
}

TEST(FindNoCase, FindsWhateverTheCase) {
  EXPECT_EQ(FindNoCase(u"One two TWO", u"TWO"), 4u);
  EXPECT_EQ(FindNoCase(u"One two TWO", u"two", 5), 8u);
  EXPECT_EQ(FindNoCase(u"One", u"three"), std::u16string_view::npos);
  EXPECT_EQ(FindNoCase(u"abc", u"", 3), 3u);
  EXPECT_EQ(FindNoCase(u"abc", u"", 4), std::u16string_view::npos);
}

TEST(Trim, CutsBlanksAndNothingElse) {
  EXPECT_EQ(Trim(u"  a b "), u"a b");
  EXPECT_EQ(Trim(u"   "), u"");
  EXPECT_EQ(Trim(u"\t\u00A0a\n "), u"\t\u00A0a\n");
}

TEST(Replace, ReplacesEveryOccurrence) {
  EXPECT_EQ(Replace(u"1,2,3", u",", u"."), u"1.2.3");
  EXPECT_EQ(Replace(u"aaa", u"aa", u"b"), u"ba");
  EXPECT_EQ(Replace(u"abc", u"", u"x"), u"abc");
  EXPECT_EQ(Replace(u"aBAb", u"ab", u"-"), u"aBAb");
  EXPECT_EQ(Replace(u"aBAb", u"ab", u"-", true), u"--");
  EXPECT_EQ(Replace(u"a", u"a", u""), u"");
}

}  // namespace
}  // namespace cardwright
