// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>

#include "automation/Printing.h"
#include "cardwright/automation/Array.h"
#include "cardwright/automation/Conversions.h"

namespace cardwright {
namespace {

struct Formatted {
  Variant value;
  const char* text;
};

void ExpectTexts(std::initializer_list<Formatted> cases) {
  for (const Formatted& c : cases) EXPECT_EQ(ToText(c.value).ToUtf8(), c.text);
}

TEST(ToText, PrintsADoubleToFifteenDigits) {
  const InLocale current(u"en-us");
  ExpectTexts({{0.0, "0"},
               {-0.0, "0"},
               {0.1, "0.1"},
               {1.5, "1.5"},
               {-2.25, "-2.25"},
               {1e14, "100000000000000"},
               {1e15, "1E+15"},
               {123456789012345.0, "123456789012345"},
               {1234567890123456.0, "1.23456789012346E+15"},
               {0.0001, "0.0001"},
               {0.00001, "1E-05"},
               {0.1 + 0.2, "0.3"},
               {1.0 / 3, "0.333333333333333"},
               {2.0 / 3, "0.666666666666667"},
               {1e100, "1E+100"},
               {-1.5e-10, "-1.5E-10"},
               {999999999999999.9, "1E+15"},
               {0.000123456789012345, "1.23456789012345E-04"},
               {0.00012345678901, "0.00012345678901"},
               {1.0 / 12, "8.33333333333333E-02"},
               {-1.0 / 300, "-3.33333333333333E-03"},
               {0.0625, "0.0625"},
               {1e308, "1E+308"},
               {5e-324, "4.94065645841247E-324"}});
}

TEST(ToText, PrintsASingleToSevenDigits) {
  const InLocale current(u"en-us");
  ExpectTexts({{0.1F, "0.1"},
               {1.0F / 3, "0.3333333"},
               {1.0F / 12, "8.333334E-02"},
               {0.046875F, "0.046875"},
               {1234567.0F, "1234567"},
               {1e7F, "1E+07"},
               {16777216.0F, "1.677722E+07"},
               {1e-5F, "1E-05"}});
}

TEST(ToText, PrintsEveryOtherType) {
  const InLocale current(u"en-us");
  ExpectTexts({{Variant(), ""},
               {true, "True"},
               {false, "False"},
               {std::uint8_t{7}, "7"},
               {std::int16_t{-7}, "-7"},
               {std::numeric_limits<std::int32_t>::min(), "-2147483648"},
               {Currency{12345}, "1.2345"},
               {Currency{-5000}, "-0.5"},
               {Currency{10000}, "1"},
               {Currency{std::numeric_limits<std::int64_t>::min()}, "-922337203685477.5808"},
               {Decimal{.low = 1, .high = 0, .scale = 28}, "0.0000000000000000000000000001"},
               {Decimal{.low = 1500, .scale = 3, .negative = true}, "-1.5"},
               {ErrorValue{13}, "Error 13"},
               {u"as it is", "as it is"}});
}

TEST(ToText, UsesTheDecimalSeparatorOfTheCountry) {
  const InLocale current(u"it-it");
  ExpectTexts({{1.5, "1,5"}, {0.5F, "0,5"}, {Currency{15000}, "1,5"}, {1.5e20, "1,5E+20"}, {1000, "1000"}});
}

TEST(ToText, FailsForNullAndArrays) {
  EXPECT_EQ(ErrorOf([] { ToText(Variant::Null()); }), 94);
  EXPECT_EQ(ErrorOf([] { ToText(Array::FromValues({})); }), 13);
  EXPECT_EQ(ErrorOf([] { ToText(Variant::Nothing()); }), 91);
}

TEST(FormatDouble, WritesInfinityAndNaN) {
  EXPECT_EQ(FormatDouble(std::numeric_limits<double>::infinity()), u"1.#INF");
  EXPECT_EQ(FormatDouble(-std::numeric_limits<double>::infinity()), u"-1.#INF");
  EXPECT_EQ(FormatDouble(std::nan("")), u"-1.#IND");
}

TEST(Str, AlwaysUsesAPointAndLeavesRoomForTheSign) {
  const InLocale current(u"it-it");
  const Formatted cases[] = {
      {12, " 12"},
      {0, " 0"},
      {-12, "-12"},
      {0.25, " .25"},
      {-0.5, "-.5"},
      {3.5, " 3.5"},
      {-3.5, "-3.5"},
      {1e15, " 1E+15"},
      {-0.00001, "-1E-05"},
      {0.5F, " .5"},
      {0.1F, " .1"},
      {16777216.0F, " 1.6777216E+07"},
      {Currency{-5000}, "-.5"},
      {Currency{12500}, " 1.25"},
      {Decimal{.low = 5, .scale = 1}, " .5"},
      {std::uint8_t{3}, " 3"},
      {std::int16_t{-3}, "-3"},
      {Variant(), " 0"},
      {u"1,5", " 1.5"},
      {true, "True"},
      {-0.0, " 0"},
      {0.1 + 0.2, " .30000000000000004"},
      {8.25, " 8.25"},
  };
  for (const Formatted& c : cases) EXPECT_EQ(Str(c.value).ToUtf8(), c.text);
}

TEST(Str, FailsForWhatIsNoNumber) {
  EXPECT_EQ(ErrorOf([] { Str(u"abc"); }), 13);
  EXPECT_EQ(ErrorOf([] { Str(Variant::Null()); }), 94);
}

TEST(Str, ReadsBackAsTheSameDouble) {
  std::uint64_t state = 88172645463325252u;
  for (int i = 0; i < 20000; ++i) {
    state ^= state << 13;
    state ^= state >> 7;
    state ^= state << 17;
    const double value = std::bit_cast<double>(state);
    if (!std::isfinite(value)) continue;
    ASSERT_EQ(Val(Str(value)), value) << Str(value).ToUtf8();
    ASSERT_EQ(Val(FormatExact(value)), value) << FormatExact(value).ToUtf8();
  }
}

TEST(FormatExact, UsesNoMoreDigitsThanNeeded) {
  EXPECT_EQ(FormatExact(0.1), u"0.1");
  EXPECT_EQ(FormatExact(0.1 + 0.2), u"0.30000000000000004");
  EXPECT_EQ(FormatExact(1e21), u"1E+21");
  EXPECT_EQ(FormatExact(5e-324), u"5E-324");
  EXPECT_EQ(FormatExact(9007199254740993.0), u"9.007199254740992E+15");
}

}  // namespace
}  // namespace cardwright
