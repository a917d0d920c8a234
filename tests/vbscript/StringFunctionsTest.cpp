// SPDX-License-Identifier: MIT
#include "automation/Printing.h"
#include "cardwright/automation/Collection.h"
#include "vbscript/LibraryCalls.h"

namespace cardwright::vbscript {
namespace {

struct StringRow {
  const char16_t* name;
  std::vector<Variant> args;
  const char* answer;
};

class StringFunction : public testing::TestWithParam<StringRow> {};

TEST_P(StringFunction, Answers) {
  LibraryCalls calls;
  EXPECT_EQ(calls.Answer(GetParam().name, GetParam().args), GetParam().answer)
      << Text(GetParam().name).ToUtf8();
}

const Variant kList = Array::FromValues({});
const Variant kNothing = Variant::Nothing();

INSTANTIATE_TEST_SUITE_P(Parts, StringFunction,
                         testing::ValuesIn<StringRow>({
                             {u"Len", {u"abc"}, "Long 3"},
                             {u"Len", {u""}, "Long 0"},
                             {u"Len", {Variant()}, "Long 0"},
                             {u"Len", {kNull}, "Null"},
                             {u"Len", {1234}, "Long 4"},
                             {u"Len", {1.5}, "Long 3"},
                             {u"Len", {true}, "Long 4"},
                             {u"Len", {kList}, "Error 13"},
                             {u"Len", {kMissing}, "Error 13"},
                             {u"Len", {kNothing}, "Error 91"},
                             {u"Left", {u"abc", 2}, "String ab"},
                             {u"Left", {u"abc", 3}, "String abc"},
                             {u"Left", {u"abc", 99}, "String abc"},
                             {u"Left", {u"abc", 0}, "String "},
                             {u"Left", {u"abc", -1}, "Error 5"},
                             {u"Left", {kNull, 1}, "Null"},
                             {u"Left", {u"abc", kNull}, "Error 94"},
                             {u"Left", {u"abc", u"x"}, "Error 13"},
                             {u"Left", {u"abc", u"2"}, "String ab"},
                             {u"Left", {u"abc", 1.5}, "String ab"},
                             {u"Left", {u"abc", 1e10}, "Error 6"},
                             {u"Left", {12345, 2}, "String 12"},
                             {u"Left", {kMissing, 2}, "Error 13"},
                             {u"Left", {u"abc", kMissing}, "Error 13"},
                             {u"Right", {u"abc", 2}, "String bc"},
                             {u"Right", {u"abc", 9}, "String abc"},
                             {u"Right", {u"abc", 0}, "String "},
                             {u"Right", {u"abc", -1}, "Error 5"},
                             {u"Right", {kNull, 1}, "Null"},
                             {u"Right", {Variant(), 1}, "String "},
                             {u"Mid", {u"abcdef", 2, 3}, "String bcd"},
                             {u"Mid", {u"abcdef", 2}, "String bcdef"},
                             {u"Mid", {u"abcdef", 2, kMissing}, "String bcdef"},
                             {u"Mid", {u"abcdef", 5, 9}, "String ef"},
                             {u"Mid", {u"abcdef", 7}, "String "},
                             {u"Mid", {u"abcdef", 99, 1}, "String "},
                             {u"Mid", {u"abcdef", 1}, "String abcdef"},
                             {u"Mid", {u"abcdef", 3, 1}, "String c"},
                             {u"Mid", {u"abcdef", 3, 0}, "String "},
                             {u"Mid", {u"abcdef", 0}, "Error 5"},
                             {u"Mid", {u"abcdef", -1}, "Error 5"},
                             {u"Mid", {u"abcdef", 1, -1}, "Error 5"},
                             {u"Mid", {kNull, 1}, "Null"},
                             {u"Mid", {u"abc", kNull}, "Error 94"},
                             {u"Mid", {u"abc", 1, kNull}, "Error 94"},
                             {u"LTrim", {u"  a b "}, "String a b "},
                             {u"RTrim", {u"  a b "}, "String   a b"},
                             {u"Trim", {u"  a b "}, "String a b"},
                             {u"Trim", {u"   "}, "String "},
                             {u"LTrim", {u"   "}, "String "},
                             {u"RTrim", {u"   "}, "String "},
                             {u"Trim", {u""}, "String "},
                             {u"Trim", {u"\ta\t"}, "String \ta\t"},
                             {u"Trim",
                              {u"\u00A0a"},
                              "String \xC2\xA0"
                              "a"},
                             {u"Trim", {kNull}, "Null"},
                             {u"LTrim", {kNull}, "Null"},
                             {u"RTrim", {kNull}, "Null"},
                             {u"Trim", {Variant()}, "String "},
                             {u"Trim", {kMissing}, "Error 13"},
                         }));

INSTANTIATE_TEST_SUITE_P(Bytes, StringFunction,
                         testing::ValuesIn<StringRow>({
                             {u"LenB", {u"abc"}, "Long 6"},
                             {u"LenB", {12}, "Long 4"},
                             {u"LenB", {kNull}, "Null"},
                             {u"LeftB", {u"abc", 4}, "String ab"},
                             {u"LeftB", {u"abc", 3}, "String ab"},
                             {u"LeftB", {u"a\u0162", 3}, "String ab"},
                             {u"LeftB", {u"abc", -1}, "Error 5"},
                             {u"RightB", {u"abc", 4}, "String bc"},
                             {u"RightB", {u"abc", 99}, "String abc"},
                             {u"RightB", {kNull, 1}, "Null"},
                             {u"MidB", {u"abc", 3, 2}, "String b"},
                             {u"MidB", {u"abc", 3, 1}, "String b"},
                             {u"MidB", {u"abc", 3}, "String bc"},
                             {u"MidB", {u"\u6261", 2, 1}, "String b"},
                             {u"MidB", {u"abc", 7}, "String "},
                             {u"MidB", {u"abc", 0}, "Error 5"},
                             {u"InStrB", {u"abc", u"b"}, "Long 3"},
                             {u"InStrB", {4, u"abcb", u"b"}, "Long 7"},
                             {u"InStrB", {1, u"abc", u"B", 1}, "Long 3"},
                             {u"InStrB", {4, u"abcb", u"B", 1}, "Long 7"},
                             {u"InStrB", {u"\u6261\u6300", u"b"}, "Long 2"},
                             {u"InStrB", {3, u"abc", u""}, "Long 3"},
                             {u"InStrB", {3, u"abc", u"", 1}, "Long 3"},
                             {u"InStrB", {7, u"abc", u""}, "Long 0"},
                             {u"InStrB", {6, u"abc", u"", 1}, "Long 6"},
                             {u"InStrB", {kNull, u"abc", u"b"}, "Error 94"},
                             {u"InStrB", {u"abc", kNull}, "Null"},
                         }));

INSTANTIATE_TEST_SUITE_P(Search, StringFunction,
                         testing::ValuesIn<StringRow>({
                             {u"InStr", {u"abcabc", u"c"}, "Long 3"},
                             {u"InStr", {u"abcabc", u"x"}, "Long 0"},
                             {u"InStr", {4, u"abcabc", u"c"}, "Long 6"},
                             {u"InStr", {7, u"abcabc", u"c"}, "Long 0"},
                             {u"InStr", {kMissing, u"abc", u"c"}, "Long 3"},
                             {u"InStr", {1, u"abc", u"C"}, "Long 0"},
                             {u"InStr", {1, u"abc", u"C", 1}, "Long 3"},
                             {u"InStr", {1, u"abc", u"C", 0}, "Long 0"},
                             {u"InStr", {1, u"abc", u"C", kMissing}, "Long 0"},
                             {u"InStr", {1, u"abc", u"C", 2}, "Error 5"},
                             {u"InStr", {1, u"abc", u"C", -1}, "Error 5"},
                             {u"InStr", {1, u"abc", u"C", kNull}, "Error 94"},
                             {u"InStr", {0, u"abc", u"c"}, "Error 5"},
                             {u"InStr", {kNull, u"abc", u"c"}, "Error 94"},
                             {u"InStr", {u"abc", u"b", 1}, "Error 13"},
                             {u"InStr", {u"", u"a"}, "Long 0"},
                             {u"InStr", {u"", u""}, "Long 0"},
                             {u"InStr", {u"abc", u""}, "Long 1"},
                             {u"InStr", {3, u"abc", u""}, "Long 3"},
                             {u"InStr", {4, u"abc", u""}, "Long 0"},
                             {u"InStr", {kNull, u"a"}, "Null"},
                             {u"InStr", {u"a", kNull}, "Null"},
                             {u"InStr", {12345, 34}, "Long 3"},
                             {u"InStr", {u"a", kList}, "Error 13"},
                             {u"InStr", {u"ÀÉ", u"é"}, "Long 0"},
                             {u"InStr", {1, u"ÀÉ", u"é", 1}, "Long 2"},
                             {u"InStrRev", {u"abcabc", u"b"}, "Long 5"},
                             {u"InStrRev", {u"abcabc", u"b", 4}, "Long 2"},
                             {u"InStrRev", {u"abcabc", u"abc", 5}, "Long 1"},
                             {u"InStrRev", {u"abcabc", u"abc", 6}, "Long 4"},
                             {u"InStrRev", {u"abc", u"abc", 2}, "Long 0"},
                             {u"InStrRev", {u"abcabc", u"B", -1}, "Long 0"},
                             {u"InStrRev", {u"abcabc", u"B", -1, 1}, "Long 5"},
                             {u"InStrRev", {u"abcabc", u"B", kMissing, 1}, "Long 5"},
                             {u"InStrRev", {u"abc", u"b", 4}, "Long 0"},
                             {u"InStrRev", {u"abc", u"b", 0}, "Error 5"},
                             {u"InStrRev", {u"abc", u"b", -2}, "Error 5"},
                             {u"InStrRev", {u"abc", u"b", kNull}, "Error 94"},
                             {u"InStrRev", {u"abc", u"b", -1, 3}, "Error 5"},
                             {u"InStrRev", {u"abc", u""}, "Long 3"},
                             {u"InStrRev", {u"abc", u"", 2}, "Long 2"},
                             {u"InStrRev", {u"", u"a"}, "Long 0"},
                             {u"InStrRev", {u"", u""}, "Long 0"},
                             {u"InStrRev", {u"a", u"abc", -1, 1}, "Long 0"},
                             {u"InStrRev", {kNull, u"a"}, "Null"},
                             {u"InStrRev", {u"a", kNull}, "Null"},
                             {u"StrComp", {u"a", u"b"}, "Integer -1"},
                             {u"StrComp", {u"b", u"a"}, "Integer 1"},
                             {u"StrComp", {u"a", u"a"}, "Integer 0"},
                             {u"StrComp", {u"a", u"A"}, "Integer 1"},
                             {u"StrComp", {u"a", u"A", 1}, "Integer 0"},
                             {u"StrComp", {u"a", u"B", 1}, "Integer -1"},
                             {u"StrComp", {u"ab", u"A", 1}, "Integer 1"},
                             {u"StrComp", {u"a_", u"aB", 1}, "Integer -1"},
                             {u"StrComp", {u"a", u"ab"}, "Integer -1"},
                             {u"StrComp", {Variant(), u""}, "Integer 0"},
                             {u"StrComp", {1, u"1"}, "Integer 0"},
                             {u"StrComp", {kNull, u"a"}, "Null"},
                             {u"StrComp", {u"a", kNull}, "Null"},
                             {u"StrComp", {u"a", u"a", 2}, "Error 5"},
                             {u"StrComp", {u"a", u"a", kNull}, "Error 94"},
                             {u"StrComp", {u"a", u"a", kMissing}, "Integer 0"},
                         }));

INSTANTIATE_TEST_SUITE_P(Replacing, StringFunction,
                         testing::ValuesIn<StringRow>({
                             {u"Replace", {u"banana", u"an", u"AN"}, "String bANANa"},
                             {u"Replace", {u"banana", u"a", u""}, "String bnn"},
                             {u"Replace", {u"banana", u"a", u"xyz"}, "String bxyznxyznxyz"},
                             {u"Replace", {u"aaa", u"aa", u"b"}, "String ba"},
                             {u"Replace", {u"banana", u"x", u"y"}, "String banana"},
                             {u"Replace", {u"banana", u"", u"y"}, "String banana"},
                             {u"Replace", {u"", u"a", u"y"}, "String "},
                             {u"Replace", {u"banana", u"a", u"o", 3}, "String nono"},
                             {u"Replace", {u"banana", u"x", u"o", 3}, "String nana"},
                             {u"Replace", {u"banana", u"a", u"o", 7}, "String "},
                             {u"Replace", {u"banana", u"a", u"o", 1, 2}, "String bonona"},
                             {u"Replace", {u"banana", u"a", u"o", 1, 0}, "String banana"},
                             {u"Replace", {u"banana", u"a", u"o", 3, 0}, "String nana"},
                             {u"Replace", {u"banana", u"a", u"o", 1, -1}, "String bonono"},
                             {u"Replace", {u"banana", u"a", u"o", kMissing, kMissing, 1}, "String bonono"},
                             {u"Replace", {u"bAnana", u"a", u"o"}, "String bAnono"},
                             {u"Replace", {u"bAnana", u"a", u"o", 1, -1, 1}, "String bonono"},
                             {u"Replace", {u"a", u"a", u"o", 0}, "Error 5"},
                             {u"Replace", {u"a", u"a", u"o", 1, -2}, "Error 5"},
                             {u"Replace", {u"a", u"a", u"o", 1, 1, 2}, "Error 5"},
                             {u"Replace", {kNull, u"a", u"o"}, "Error 94"},
                             {u"Replace", {u"a", kNull, u"o"}, "Error 94"},
                             {u"Replace", {u"a", u"a", kNull}, "Error 94"},
                             {u"Replace", {u"a", u"a", u"o", kNull}, "Error 94"},
                             {u"Replace", {u"a", u"a", u"o", 1, kNull}, "Error 94"},
                             {u"Replace", {12321, 2, 0}, "String 10301"},
                             {u"Replace", {u"a", u"a", kMissing}, "Error 13"},
                         }));

INSTANTIATE_TEST_SUITE_P(Forms, StringFunction,
                         testing::ValuesIn<StringRow>({
                             {u"LCase", {u"AbC1Ä"}, "String abc1ä"},
                             {u"UCase", {u"aBc1ä"}, "String ABC1Ä"},
                             {u"UCase", {u"ß"}, "String ß"},
                             {u"LCase", {kNull}, "Null"},
                             {u"UCase", {kNull}, "Null"},
                             {u"UCase", {Variant()}, "String "},
                             {u"UCase", {true}, "String TRUE"},
                             {u"UCase", {kList}, "Error 13"},
                             {u"StrReverse", {u"abc"}, "String cba"},
                             {u"StrReverse", {u""}, "String "},
                             {u"StrReverse", {kNull}, "Error 94"},
                             {u"StrReverse", {123}, "String 321"},
                             {u"Space", {3}, "String    "},
                             {u"Space", {0}, "String "},
                             {u"Space", {1}, "String  "},
                             {u"Space", {-1}, "Error 5"},
                             {u"Space", {kNull}, "Error 94"},
                             {u"Space", {u"2"}, "String   "},
                             {u"Space", {2147483647}, "Error 14"},
                             {u"String", {3, u"xyz"}, "String xxx"},
                             {u"String", {0, u"x"}, "String "},
                             {u"String", {2, 65}, "String AA"},
                             {u"String", {2, 65 + 256}, "String AA"},
                             {u"String", {1, 128}, "String €"},
                             {u"String", {2, u"65"}, "String 66"},
                             {u"String", {-1, u"x"}, "Error 5"},
                             {u"String", {2, u""}, "Error 5"},
                             {u"String", {2, kNull}, "Null"},
                             {u"String", {kNull, u"x"}, "Null"},
                             {u"String", {2, kList}, "Error 13"},
                             {u"String", {kMissing, u"x"}, "Error 13"},
                             {u"String", {2000000000, u"x"}, "Error 14"},
                             {u"Escape", {u"aZ09@*_+-./"}, "String aZ09@*_+-./"},
                             {u"Escape", {u"a b&c=d"}, "String a%20b%26c%3Dd"},
                             {u"Escape", {u"é€"}, "String %E9%u20AC"},
                             {u"Escape", {u"!'()~,;:"}, "String %21%27%28%29%7E%2C%3B%3A"},
                             {u"Escape", {Variant()}, "String "},
                             {u"Escape", {kNull}, "Error 94"},
                             {u"Unescape", {u"a%20b%26c"}, "String a b&c"},
                             {u"Unescape", {u"%u20ac%e9"}, "String €é"},
                             {u"Unescape", {u"%"}, "String %"},
                             {u"Unescape", {u"100%zz%4"}, "String 100%zz%4"},
                             {u"Unescape", {u"%u20A"}, "String %u20A"},
                             {u"Unescape", {u"%%41"}, "String %A"},
                             {u"Unescape", {u"%U0041"}, "String %U0041"},
                             {u"Unescape", {kNull}, "Error 94"},
                         }));

TEST(StringFunctions, TakeTheDefaultValueOfAnObject) {
  class Holder final : public TableObject {
   public:
    Text TypeName() const override { return u"Holder"; }
    Text Value() const { return u"held"; }

   protected:
    const MemberTable& Members() const override {
      static constexpr Member kMembers[] = {Property<&Holder::Value>(u"Value")};
      static const MemberTable table(kMembers, u"Value");
      return table;
    }
  };
  LibraryCalls calls;
  EXPECT_EQ(calls.Answer(u"Len", {MakeRef<Holder>()}), "Long 4");
  EXPECT_EQ(calls.Answer(u"String", {2, MakeRef<Holder>()}), "String hh");
  EXPECT_EQ(calls.Answer(u"Len", {MakeRef<Collection>()}), "Error 450");
}

TEST(StringFunctions, FindAnExcerptWhereverItStands) {
  LibraryCalls calls;
  for (std::int32_t at = 0; at < 100; ++at) {
    std::u16string characters(100, u'-');
    characters.replace(static_cast<std::size_t>(at), 3, u"aBc");
    const Variant text = Text(characters);
    EXPECT_EQ(calls.Call(u"InStr", {text, u"aBc"}).Long(), at + 1);
    EXPECT_EQ(calls.Call(u"InStr", {1, text, u"AbC", 1}).Long(), at + 1);
    EXPECT_EQ(calls.Call(u"InStrRev", {text, u"aBc"}).Long(), at + 1);
    EXPECT_EQ(calls.Call(u"InStrRev", {text, u"AbC", -1, 1}).Long(), at + 1);
  }
}

TEST(StringFunctions, ShareTheCharactersOfAWalkThroughAText) {
  LibraryCalls calls;
  const Variant text = u"banana";
  const Variant second = calls.Call(u"Mid", {text, 2, 1});
  const Variant fourth = calls.Call(u"Mid", {text, 4, 1});
  EXPECT_EQ(second.StringView().data(), fourth.StringView().data());
  EXPECT_EQ(calls.Call(u"Left", {u"ab", 1}).StringView().data(), second.StringView().data());
}

TEST(StringFunctions, PassOnATextThatStaysAsItIs) {
  LibraryCalls calls;
  const Variant text = u"just so";
  const char16_t* const characters = text.StringView().data();
  EXPECT_EQ(calls.Call(u"Trim", {text}).StringView().data(), characters);
  EXPECT_EQ(calls.Call(u"LCase", {text}).StringView().data(), characters);
  EXPECT_EQ(calls.Call(u"Replace", {text, u"x", u"y"}).StringView().data(), characters);
  EXPECT_EQ(calls.Call(u"Left", {text, 7}).StringView().data(), characters);
}

TEST(StringFunctions, RefuseResultsBeyondTheLimit) {
  LibraryCalls calls;
  calls.Context().maxTextUnits = 10;
  EXPECT_EQ(calls.Answer(u"Space", {10}), "String           ");
  EXPECT_EQ(calls.Answer(u"Space", {11}), "Error 14");
  EXPECT_EQ(calls.Answer(u"String", {11, u"x"}), "Error 14");
  EXPECT_EQ(calls.Answer(u"Replace", {u"aaaa", u"a", u"bbb"}), "Error 14");
  EXPECT_EQ(calls.Answer(u"Replace", {u"aaaa", u"a", u"bb"}), "String bbbbbbbb");
  EXPECT_EQ(calls.Answer(u"Escape", {u"    "}), "Error 14");
}

TEST(StringFunctions, UnescapeWhatTheyEscaped) {
  LibraryCalls calls;
  std::u16string all;
  for (unsigned c = 0; c < 0x10000; c += c < 0x200 ? 1 : 251) all += static_cast<char16_t>(c);
  EXPECT_EQ(calls.Call(u"Unescape", {calls.Call(u"Escape", {Text(all)})}).StringView(), all);
}

TEST(StringFunctions, ReplaceMoreThanAFewHundredPlaces) {
  LibraryCalls calls;
  const Variant text = Text(std::u16string(5000, u'a'));
  EXPECT_EQ(calls.Call(u"Replace", {text, u"a", u"bc"}).StringView().size(), 10000u);
  EXPECT_EQ(calls.Call(u"Replace", {text, u"a", u""}).StringView().size(), 0u);
}

}  // namespace
}  // namespace cardwright::vbscript
