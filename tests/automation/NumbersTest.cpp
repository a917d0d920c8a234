// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>

#include "automation/Printing.h"
#include "cardwright/automation/Array.h"
#include "cardwright/automation/Conversions.h"

namespace cardwright {
namespace {

struct WholeCase {
  Variant value;
  std::int32_t expected;
};

TEST(ToLong, RoundsHalfToEven) {
  const WholeCase cases[] = {
      {0.5, 0},
      {1.5, 2},
      {2.5, 2},
      {-0.5, 0},
      {-1.5, -2},
      {2.4999, 2},
      {3.5F, 4},
      {u"2.5", 2},
      {u"3.5", 4},
      {Currency{25000}, 2},
      {Currency{35000}, 4},
      {Currency{-25000}, -2},
      {Decimal{.low = 25, .scale = 1}, 2},
      {Decimal{.low = 250000000000001, .scale = 14}, 3},
      {2147483647.4, 2147483647},
      {-2147483648.5, std::numeric_limits<std::int32_t>::min()},
  };
  for (const WholeCase& c : cases) EXPECT_EQ(ToLong(c.value), c.expected) << ToText(c.value).ToUtf8();
}

TEST(ToLong, TakesEveryTypeThatHasANumber) {
  const WholeCase cases[] = {
      {Variant(), 0},
      {true, -1},
      {false, 0},
      {std::uint8_t{200}, 200},
      {std::int16_t{-3}, -3},
      {70000, 70000},
      {Date{38000.25}, 38000},
      {u" 12 ", 12},
      {u"&HFF", 255},
      {u"&HFFFF", 65535},
      {u"&hFFFFFFFF", -1},
      {u"&O17", 15},
      {u"&HFFFF&", 65535},
  };
  for (const WholeCase& c : cases) EXPECT_EQ(ToLong(c.value), c.expected) << ToText(c.value).ToUtf8();
}

TEST(ToLong, FollowsReferences) {
  Variant target = u"5";
  EXPECT_EQ(ToLong(Variant::ByRef(target)), 5);
  EXPECT_EQ(ToText(Variant::ByRef(target)), u"5");
}

struct FailureCase {
  Variant value;
  int error;
};

TEST(ToLong, FailsByKind) {
  const FailureCase cases[] = {
      {2147483647.5, 6},
      {-2147483649.0, 6},
      {1e300, 6},
      {std::nan(""), 6},
      {u"3000000000", 6},
      {u"1e400", 6},
      {u"", 13},
      {u"x", 13},
      {u"1 2", 13},
      {u"&HG", 13},
      {u"&H", 13},
      {u"&H1FFFFFFFF", 6},
      {Variant::Null(), 94},
      {Variant::Nothing(), 91},
      {Variant::Missing(), 13},
      {Array::FromValues({}), 13},
  };
  for (const FailureCase& c : cases) EXPECT_EQ(ErrorOf([&] { ToLong(c.value); }), c.error);
}

TEST(ToInteger, IsBounded) {
  EXPECT_EQ(ToInteger(32767.4), 32767);
  EXPECT_EQ(ToInteger(u"&HFFFF"), -1);
  EXPECT_EQ(ErrorOf([] { ToInteger(32767.5); }), 6);
  EXPECT_EQ(ErrorOf([] { ToInteger(-32769); }), 6);
  EXPECT_EQ(ErrorOf([] { ToInteger(u"&H10000"); }), 6);
}

TEST(ToByte, IsBounded) {
  EXPECT_EQ(ToByte(255.4), 255);
  EXPECT_EQ(ToByte(-0.5), 0);
  EXPECT_EQ(ToByte(true), 255);
  EXPECT_EQ(ErrorOf([] { ToByte(256); }), 6);
  EXPECT_EQ(ErrorOf([] { ToByte(-1); }), 6);
}

TEST(ToSingle, OverflowsBeyondItsRange) {
  EXPECT_EQ(ToSingle(0.1), 0.1F);
  EXPECT_EQ(ToSingle(u"1e-60"), 0.0F);
  EXPECT_EQ(ErrorOf([] { ToSingle(1e39); }), 6);
}

TEST(ToCurrency, IsExact) {
  EXPECT_EQ(ToCurrency(u"922337203685477.5807").tenThousandths, std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(ToCurrency(u"-922337203685477.5808").tenThousandths, std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(ToCurrency(u"0.00005").tenThousandths, 0);
  EXPECT_EQ(ToCurrency(u"0.00015").tenThousandths, 2);
  EXPECT_EQ(ToCurrency(1.5).tenThousandths, 15000);
  EXPECT_EQ(ToCurrency(true).tenThousandths, -10000);
  EXPECT_EQ(ErrorOf([] { ToCurrency(u"922337203685477.5808"); }), 6);
  EXPECT_EQ(ErrorOf([] { ToCurrency(1e15); }), 6);
}

TEST(ToDecimal, GoesThereAndBack) {
  for (const char16_t* text : {u"0", u"1", u"-1.5", u"79228162514264337593543950335",
                               u"0.1234567890123456789012345678", u"-7.9228162514264337593543950335"}) {
    EXPECT_EQ(ToText(ToDecimal(text)), text);
  }
  EXPECT_EQ(ToText(ToDecimal(0.1)), u"0.1");
  EXPECT_EQ(ToText(ToDecimal(0.1F)), u"0.1");
  EXPECT_EQ(ToText(ToDecimal(Currency{12345})), u"1.2345");
  EXPECT_EQ(ToDouble(ToDecimal(u"0.1")), 0.1);
  EXPECT_EQ(ToCurrency(ToDecimal(u"1.23455")).tenThousandths, 12346);
  EXPECT_EQ(ToText(ToDecimal(u"1.00000000000000000000000000005")), u"1");
  EXPECT_EQ(ToText(ToDecimal(u"12345678901234567890.123456789012")), u"12345678901234567890.123456789");
  EXPECT_EQ(ErrorOf([] { ToDecimal(u"79228162514264337593543950336"); }), 6);
  EXPECT_EQ(ErrorOf([] { ToDecimal(1e30); }), 6);
}

TEST(ToBoolean, KnowsItsWordsAndNumbers) {
  for (const Variant& value : std::initializer_list<Variant>{true, u"True", u"tRUE", u"#TRUE#", u"-1", u"0.1",
                                                             5, Currency{1}, Date{0.5}}) {
    EXPECT_TRUE(ToBoolean(value)) << ToText(value).ToUtf8();
  }
  for (const Variant& value :
       std::initializer_list<Variant>{false, u"FALSE", u"#FALSE#", u"0", 0.0, Variant()}) {
    EXPECT_FALSE(ToBoolean(value)) << ToText(value).ToUtf8();
  }
  EXPECT_EQ(ErrorOf([] { ToBoolean(u"yes"); }), 13);
  EXPECT_EQ(ErrorOf([] { ToBoolean(u""); }), 13);
  EXPECT_EQ(ErrorOf([] { ToBoolean(Variant::Null()); }), 94);
}

struct TextNumber {
  const char16_t* text;
  double expected;
};

void ExpectNumbers(std::u16string_view locale, std::initializer_list<TextNumber> cases) {
  const InLocale current(locale);
  for (const TextNumber& c : cases) {
    EXPECT_TRUE(IsNumericText(c.text)) << Text(c.text).ToUtf8();
    EXPECT_EQ(BestEffortOr(-999.0, [&] { return ToDouble(c.text); }), c.expected) << Text(c.text).ToUtf8();
  }
}

void ExpectNoNumbers(std::u16string_view locale, std::initializer_list<const char16_t*> texts) {
  const InLocale current(locale);
  for (const char16_t* text : texts) {
    EXPECT_FALSE(IsNumericText(text)) << Text(text).ToUtf8();
  }
}

TEST(NumericText, ReadsWhatThePlatformReadsInAmerica) {
  ExpectNumbers(u"en-us", {{u"1", 1},
                           {u"+1", 1},
                           {u"-1", -1},
                           {u"1-", -1},
                           {u"1 -", -1},
                           {u" 1\t\r\n", 1},
                           {u".5", 0.5},
                           {u"5.", 5},
                           {u"1,5", 15},
                           {u"1,,5", 15},
                           {u"1,", 1},
                           {u"1,234.5", 1234.5},
                           {u"1e3", 1000},
                           {u"1E+3", 1000},
                           {u"1d-3", 0.001},
                           {u"$5", 5},
                           {u"-$5", -5},
                           {u"$-5", -5},
                           {u"5$", 5},
                           {u"$ 5 -", -5},
                           {u"(5)", -5},
                           {u"($5.50)", -5.5},
                           {u"$(5)", -5},
                           {u"&HFF", 255},
                           {u"&o10", 8},
                           {u"0.1", 0.1},
                           {u"1e-999", 0},
                           {u"00012", 12},
                           {u"123456789012345678901234567890", 123456789012345678901234567890.0}});
  ExpectNoNumbers(u"en-us", {u"",      u" ",    u"abc,def", u"1.2.3", u",5",    u"-",     u".",   u"$",
                             u"--1",   u"-1-",  u"(5",      u"5)",    u"(-5)",  u"1e",    u"1e+", u"e5",
                             u"1 2",   u"$$5",  u"1.5,5",   u"5%",    u"1e999", u"1/2",   u"&H",  u"&HG",
                             u"&H1.5", u"True", u"1x",      u"()",    u"€5",    u"\u0661"});
}

TEST(NumericText, ReadsTheSeparatorsOfOtherCountries) {
  ExpectNumbers(u"it-it", {{u"1,5", 1.5}, {u"1.234,5", 1234.5}, {u"1.5", 15}, {u"€ 3", 3}, {u"0,25", 0.25}});
  ExpectNumbers(u"de-de", {{u"1.234.567,25", 1234567.25}, {u"3 €", 3}});
  ExpectNumbers(u"de-ch", {{u"1'234.5", 1234.5}});
  ExpectNumbers(u"fr-fr", {{u"1\u00A0234,5", 1234.5}, {u"1 234,5", 1234.5}, {u"1,5 €", 1.5}});
  ExpectNumbers(u"pt-br", {{u"R$ 1.000,50", 1000.5}});
  ExpectNoNumbers(u"it-it", {u"1,2,3", u"$5", u"1,5.5"});
  ExpectNoNumbers(u"fr-fr", {u"1.5"});
}

TEST(NumericText, IsNumericExactlyWhereTheConversionSucceeds) {
  constexpr std::u16string_view kAlphabet = u"0159.,-+ ()$eEd&hHFx";
  std::uint32_t state = 1;
  const auto next = [&](std::uint32_t below) {
    state = state * 1664525u + 1013904223u;
    return (state >> 16) % below;
  };
  int numeric = 0;
  for (int i = 0; i < 50000; ++i) {
    Text text;
    for (std::uint32_t length = next(7); length > 0; --length) {
      text += kAlphabet.substr(next(static_cast<std::uint32_t>(kAlphabet.size())), 1);
    }
    const bool converts = ErrorOf([&] { ToDouble(text); }) == 0;
    ASSERT_EQ(IsNumericText(text), converts) << text.ToUtf8();
    numeric += converts ? 1 : 0;
  }
  EXPECT_GT(numeric, 1000);
}

TEST(IsNumeric, JudgesValuesByType) {
  EXPECT_TRUE(IsNumeric(1));
  EXPECT_TRUE(IsNumeric(true));
  EXPECT_TRUE(IsNumeric(Variant()));
  EXPECT_TRUE(IsNumeric(u"1"));
  EXPECT_FALSE(IsNumeric(u""));
  EXPECT_FALSE(IsNumeric(Date{1}));
  EXPECT_FALSE(IsNumeric(Variant::Null()));
  EXPECT_FALSE(IsNumeric(Variant::Nothing()));
  EXPECT_FALSE(IsNumeric(Variant::Missing()));
  EXPECT_FALSE(IsNumeric(Array::FromValues({})));
}

TEST(Val, ReadsTheNumberAtTheStart) {
  const TextNumber cases[] = {
      {u"", 0},
      {u"abc", 0},
      {u"12abc", 12},
      {u"1 2 3", 123},
      {u" \t\n 7", 7},
      {u"1e3", 1000},
      {u"1d3", 1000},
      {u"1E-2x", 0.01},
      {u"1e", 1},
      {u"1e+", 1},
      {u"-1.5", -1.5},
      {u"+2", 2},
      {u"- 3", -3},
      {u".5", 0.5},
      {u".", 0},
      {u"5.", 5},
      {u"1.2.3", 1.2},
      {u"1,5", 1},
      {u"&HFF", 255},
      {u"&hffff", -1},
      {u"&H8000", -32768},
      {u"&H7FFF", 32767},
      {u"&H10000", 65536},
      {u"&HFFFFFFFF", -1},
      {u"&HFFFF&", 65535},
      {u"&O17", 15},
      {u"&O8", 0},
      {u"&", 0},
      {u"&HX", 0},
      {u"24 Street", 24},
      {u"--5", 0},
      {u"1e-400", 0},
      {u"&H-5", 0},
      {u"1\r2", 1},
  };
  const InLocale italian(u"it-it");
  for (const TextNumber& c : cases) EXPECT_EQ(Val(c.text), c.expected) << Text(c.text).ToUtf8();
}

TEST(Val, IsInfiniteBeyondTheRange) { EXPECT_TRUE(std::isinf(Val(u"1e400"))); }

}  // namespace
}  // namespace cardwright
