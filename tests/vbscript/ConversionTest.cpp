// SPDX-License-Identifier: MIT
#include <limits>

#include "vbscript/LibraryCalls.h"

namespace cardwright::vbscript {
namespace {

void ExpectConversions(std::initializer_list<CallCase> cases) { ExpectCalls(cases); }

TEST(ConversionFunctions, RoundHalfToEven) {
  ExpectConversions({{u"CInt", {2.5}, "i 2"},
                     {u"CInt", {3.5}, "i 4"},
                     {u"CInt", {-2.5}, "i -2"},
                     {u"CLng", {0.5}, "l 0"},
                     {u"CLng", {u"1.5"}, "l 2"},
                     {u"CByte", {254.5}, "y 254"},
                     {u"CCur", {u"1.00005"}, "c 1"},
                     {u"CCur", {u"1.00015"}, "c 1.0002"}});
}

TEST(ConversionFunctions, GiveTheirTypes) {
  ExpectConversions({{u"CBool", {Short{5}}, "b True"},
                     {u"CBool", {u"False"}, "b False"},
                     {u"CBool", {u"0.0"}, "b False"},
                     {u"CBool", {Variant()}, "b False"},
                     {u"CByte", {true}, "y 255"},
                     {u"CCur", {Short{5}}, "c 5"},
                     {u"CDate", {36526.5}, "t 1/1/2000 12:00:00 PM"},
                     {u"CDate", {Variant()}, "t 12:00:00 AM"},
                     {u"CDate", {u"1/2/2000"}, "t 1/2/2000"},
                     {u"CDbl", {u"1e3"}, "d 1000"},
                     {u"CDbl", {true}, "d -1"},
                     {u"CDbl", {Date{1.5}}, "d 1.5"},
                     {u"CInt", {u"&HFFFF"}, "i -1"},
                     {u"CLng", {u"&HFFFF"}, "l 65535"},
                     {u"CSng", {0.1}, "s 0.1"},
                     {u"CStr", {0.1}, "& 0.1"},
                     {u"CStr", {true}, "& True"},
                     {u"CStr", {Variant()}, "& "},
                     {u"CStr", {ObjectOf(Short{7})}, "& 7"}});
}

TEST(ConversionFunctions, FailForWhatHasNoValue) {
  for (const char16_t* name :
       {u"CBool", u"CByte", u"CCur", u"CDate", u"CDbl", u"CInt", u"CLng", u"CSng", u"CStr"}) {
    ExpectConversions({{name, {kNull}, "error 94"},
                       {name, {kMissing}, "error 13"},
                       {name, {SomeArray()}, "error 13"},
                       {name, {Variant::Nothing()}, "error 91"},
                       {name, {ObjectWithoutValue()}, "error 438"}});
  }
}

TEST(ConversionFunctions, FailForTextsThatAreNoNumbers) {
  for (const char16_t* name : {u"CBool", u"CByte", u"CCur", u"CDate", u"CDbl", u"CInt", u"CLng", u"CSng"}) {
    for (const char16_t* text : {u"", u"abc", u"1 2 3 4", u"--1", u"&H", u"1e", u"."}) {
      ExpectConversions({{name, {text}, "error 13"}});
    }
  }
}

TEST(ConversionFunctions, OverflowBeyondTheirRange) {
  ExpectConversions({{u"CByte", {Short{256}}, "error 6"},
                     {u"CByte", {Short{-1}}, "error 6"},
                     {u"CInt", {32767.5}, "error 6"},
                     {u"CInt", {32767.49}, "i 32767"},
                     {u"CInt", {-32768.5}, "i -32768"},
                     {u"CLng", {2147483647.5}, "error 6"},
                     {u"CLng", {u"-2147483648"}, "l -2147483648"},
                     {u"CSng", {1e39}, "error 6"},
                     {u"CDbl", {u"1e309"}, "error 6"},
                     {u"CCur", {1e15}, "error 6"},
                     {u"CDate", {1e7}, "error 6"}});
}

TEST(Int, GoesDownAndFixTowardsZeroInTheSameType) {
  ExpectConversions({{u"Int", {1.7}, "d 1"},
                     {u"Int", {-1.2}, "d -2"},
                     {u"Fix", {-1.8}, "d -1"},
                     {u"Int", {1.5F}, "s 1"},
                     {u"Int", {Short{5}}, "i 5"},
                     {u"Fix", {Byte{5}}, "y 5"},
                     {u"Int", {70000}, "l 70000"},
                     {u"Int", {true}, "i -1"},
                     {u"Int", {Variant()}, "i 0"},
                     {u"Int", {u"-2.5"}, "d -3"},
                     {u"Fix", {u"-2.5"}, "d -2"},
                     {u"Int", {u"x"}, "error 13"},
                     {u"Int", {kNull}, "n"},
                     {u"Fix", {kNull}, "n"},
                     {u"Int", {Currency{-15000}}, "c -2"},
                     {u"Int", {Currency{-20000}}, "c -2"},
                     {u"Fix", {Currency{-15000}}, "c -1"},
                     {u"Int", {Currency{std::numeric_limits<std::int64_t>::min()}}, "error 6"},
                     {u"Int", {Date{36526.75}}, "t 1/1/2000"},
                     {u"Int", {Date{-1.5}}, "t 12/28/1899"},
                     {u"Int", {Decimal{.low = 15, .scale = 1, .negative = true}}, "x -2"},
                     {u"Fix", {Decimal{.low = 15, .scale = 1, .negative = true}}, "x -1"},
                     {u"Int", {kMissing}, "error 13"},
                     {u"Int", {SomeArray()}, "error 13"},
                     {u"Fix", {Variant::Nothing()}, "error 91"}});
}

TEST(Round, RoundsHalfToEvenInTheSameType) {
  ExpectConversions({{u"Round", {2.5}, "d 2"},
                     {u"Round", {3.5}, "d 4"},
                     {u"Round", {-2.5}, "d -2"},
                     {u"Round", {0.125, Short{2}}, "d 0.12"},
                     {u"Round", {0.375, Short{2}}, "d 0.38"},
                     {u"Round", {1234.5678, Short{2}}, "d 1234.57"},
                     {u"Round", {1.5F}, "s 2"},
                     {u"Round", {Short{7}, Short{2}}, "i 7"},
                     {u"Round", {true}, "i -1"},
                     {u"Round", {Variant()}, "i 0"},
                     {u"Round", {u"2.5"}, "d 2"},
                     {u"Round", {Currency{12345}, Short{2}}, "c 1.23"},
                     {u"Round", {Currency{12350}, Short{2}}, "c 1.24"},
                     {u"Round", {Currency{12345}, Short{4}}, "c 1.2345"},
                     {u"Round", {Currency{25000}}, "c 2"},
                     {u"Round", {Decimal{.low = 12345, .scale = 4}, Short{3}}, "x 1.234"},
                     {u"Round", {Date{36526.75}}, "t 1/2/2000"},
                     {u"Round", {1e300, Short{22}}, "d 1E+300"},
                     {u"Round", {1.5, Short{22}}, "d 1.5"},
                     {u"Round", {1.5, kMissing}, "d 2"},
                     {u"Round", {kNull, Short{1}}, "n"},
                     {u"Round", {1.5, kNull}, "error 94"},
                     {u"Round", {1.5, Short{-1}}, "error 5"},
                     {u"Round", {1.5, Short{23}}, "error 5"},
                     {u"Round", {u"x"}, "error 13"},
                     {u"Round", {kMissing}, "error 13"}});
}

TEST(Hex, ShowsTheBitsOfTheType) {
  ExpectConversions({{u"Hex", {Short{255}}, "& FF"},
                     {u"Hex", {Short{-1}}, "& FFFF"},
                     {u"Hex", {-1}, "& FFFFFFFF"},
                     {u"Hex", {-1.0}, "& FFFFFFFF"},
                     {u"Hex", {u"-1"}, "& FFFFFFFF"},
                     {u"Hex", {true}, "& FFFF"},
                     {u"Hex", {Byte{255}}, "& FF"},
                     {u"Hex", {Short{0}}, "& 0"},
                     {u"Hex", {Variant()}, "& 0"},
                     {u"Hex", {10.5}, "& A"},
                     {u"Hex", {kNull}, "n"},
                     {u"Hex", {2147483648.0}, "error 6"},
                     {u"Hex", {u"x"}, "error 13"},
                     {u"Hex", {kMissing}, "error 13"},
                     {u"Oct", {Short{8}}, "& 10"},
                     {u"Oct", {Short{-1}}, "& 177777"},
                     {u"Oct", {-1}, "& 37777777777"},
                     {u"Oct", {Short{0}}, "& 0"},
                     {u"Oct", {kNull}, "n"}});
}

TEST(Asc, ReadsTheFirstCharacter) {
  ExpectConversions({{u"Asc", {u"A"}, "i 65"},
                     {u"Asc", {u"\u20AC"}, "i 128"},
                     {u"Asc", {u"\u00E9"}, "i 233"},
                     {u"Asc", {u"\u03A9"}, "i 63"},
                     {u"Asc", {Short{5}}, "i 53"},
                     {u"AscW", {u"\u20AC"}, "i 8364"},
                     {u"AscW", {u"\uFFFF"}, "i -1"},
                     {u"AscB", {u"A"}, "i 65"},
                     {u"AscB", {u"\u20AC"}, "i 172"}});
  for (const char16_t* name : {u"Asc", u"AscB", u"AscW"}) {
    ExpectConversions({{name, {u""}, "error 5"},
                       {name, {Variant()}, "error 5"},
                       {name, {kNull}, "error 94"},
                       {name, {kMissing}, "error 13"},
                       {name, {SomeArray()}, "error 13"}});
  }
}

TEST(Chr, MakesACharacter) {
  ExpectConversions({{u"Chr", {Short{65}}, "& A"},
                     {u"Chr", {Short{128}}, "& \xE2\x82\xAC"},
                     {u"Chr", {Short{233}}, "& \xC3\xA9"},
                     {u"Chr", {65.5}, "& B"},
                     {u"Chr", {u"65"}, "& A"},
                     {u"Chr", {Short{256}}, "error 5"},
                     {u"Chr", {Short{-1}}, "error 5"},
                     {u"Chr", {1e10}, "error 6"},
                     {u"Chr", {kNull}, "error 94"},
                     {u"Chr", {kMissing}, "error 13"},
                     {u"ChrW", {Short{8364}}, "& \xE2\x82\xAC"},
                     {u"ChrW", {Short{-7172}}, "& \xEE\x8F\xBC"},
                     {u"ChrW", {65535}, "& \xEF\xBF\xBF"},
                     {u"ChrW", {65536}, "error 5"},
                     {u"ChrW", {-32769}, "error 5"},
                     {u"ChrB", {Short{65}}, "& A"},
                     {u"ChrB", {Short{256}}, "error 5"}});
}

TEST(Chr, AndAscTakeEachOtherBack) {
  LibraryCalls calls;
  for (Short code = 0; code < 256; ++code) {
    EXPECT_EQ(calls.Call(u"Asc", {calls.Call(u"Chr", {code})}).Integer(), code);
    EXPECT_EQ(calls.Call(u"Chr", {code}).String().Size(), 1U);
  }
}

struct TypeCase {
  Variant value;
  const char16_t* name;
  int number;
};

TEST(TypeName, AndVarTypeTellTheType) {
  LibraryCalls calls;
  const TypeCase cases[] = {{Variant(), u"Empty", 0},
                            {kNull, u"Null", 1},
                            {Short{1}, u"Integer", 2},
                            {1, u"Long", 3},
                            {1.0F, u"Single", 4},
                            {1.0, u"Double", 5},
                            {Currency{1}, u"Currency", 6},
                            {Date{1}, u"Date", 7},
                            {u"", u"String", 8},
                            {Variant::Nothing(), u"Nothing", 9},
                            {ObjectWithoutValue(), u"Sample", 9},
                            {ObjectOf(u"a"), u"Sample", 8},
                            {ObjectOf(kNull), u"Sample", 1},
                            {kMissing, u"Error", 10},
                            {true, u"Boolean", 11},
                            {Decimal{}, u"Decimal", 14},
                            {Byte{1}, u"Byte", 17},
                            {SomeArray(), u"Variant()", 8204}};
  for (const TypeCase& c : cases) {
    EXPECT_EQ(calls.Call(u"TypeName", {c.value}).String(), c.name);
    const Variant number = calls.Call(u"VarType", {c.value});
    EXPECT_EQ(number.Type(), VarType::Integer);
    EXPECT_EQ(number.Integer(), c.number) << Text(c.name).ToUtf8();
  }
}

/// Its default member wants an argument, as that of a collection does.
class Indexed final : public Object {
 public:
  Text TypeName() const override { return u"Indexed"; }
  MemberId FindMember(std::u16string_view) const override { return kNoMember; }
  MemberId DefaultMember() const override { return 0; }
  Variant Invoke(MemberId, CallKind, Args) override { Raise(ErrorNumber::WrongArgumentCount); }
};

TEST(VarType, OfAnObjectWhoseDefaultMemberWantsAnArgumentIsObject) {
  ExpectConversions({{u"VarType", {MakeRef<Indexed>()}, "i 9"},
                     {u"IsNull", {MakeRef<Indexed>()}, "b False"},
                     {u"IsEmpty", {MakeRef<Indexed>()}, "b False"},
                     {u"IsNumeric", {MakeRef<Indexed>()}, "b False"},
                     {u"IsDate", {MakeRef<Indexed>()}, "b False"}});
}

TEST(IsFunctions, NeverFail) {
  LibraryCalls calls;
  const auto answers = [&](const Variant& value) {
    std::string letters;
    for (const char16_t* name : {u"IsArray", u"IsDate", u"IsEmpty", u"IsNull", u"IsNumeric", u"IsObject"}) {
      letters += calls.Call(name, {value}).Boolean() ? 'T' : '.';
    }
    return letters;
  };
  // IsArray, IsDate, IsEmpty, IsNull, IsNumeric, IsObject
  EXPECT_EQ(answers(Variant()), "..T.T.");
  EXPECT_EQ(answers(kNull), "...T..");
  EXPECT_EQ(answers(true), "....T.");
  EXPECT_EQ(answers(Short{1}), "....T.");
  EXPECT_EQ(answers(Date{1}), ".T....");
  EXPECT_EQ(answers(u"1"), "....T.");
  EXPECT_EQ(answers(u""), "......");
  EXPECT_EQ(answers(u"1/1/2000"), ".T....");
  EXPECT_EQ(answers(SomeArray()), "T.....");
  EXPECT_EQ(answers(kMissing), "......");
  EXPECT_EQ(answers(Variant::Nothing()), ".....T");
  EXPECT_EQ(answers(ObjectWithoutValue()), ".....T");
  EXPECT_EQ(answers(ObjectOf(kNull)), "...T.T");
  EXPECT_EQ(answers(ObjectOf(Variant())), "..T.TT");
  EXPECT_EQ(answers(ObjectOf(u"12")), "....TT");
}

}  // namespace
}  // namespace cardwright::vbscript
