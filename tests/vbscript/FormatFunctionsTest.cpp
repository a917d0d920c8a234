// SPDX-License-Identifier: MIT
#include <limits>

#include "vbscript/LibraryCalls.h"

namespace cardwright::vbscript {
namespace {

struct FormatCase {
  std::vector<Variant> args;
  const char* answer;
};

class FormatFunctionsTest : public testing::Test {
 protected:
  void Expect(std::u16string_view name, const std::vector<FormatCase>& cases) {
    for (const FormatCase& c : cases) {
      const std::string answer = m_Calls.Answer(name, c.args);
      const bool isText = answer.starts_with("String ");
      EXPECT_EQ(isText ? answer.substr(7) : answer, c.answer)
          << Text(name).ToUtf8() << " of " << (c.args[0].IsNull() ? "Null" : ToText(c.args[0]).ToUtf8());
    }
  }

  LibraryCalls m_Calls;
  const Variant m_Null = Variant::Null();
  const Variant m_Missing = Variant::Missing();
};

TEST_F(FormatFunctionsTest, FormatNumberHasTwoDecimalsAndGroups) {
  Expect(u"FormatNumber", {{{1234567.891}, "1,234,567.89"},
                           {{0}, "0.00"},
                           {{999}, "999.00"},
                           {{1000}, "1,000.00"},
                           {{-1234.5}, "-1,234.50"},
                           {{Variant()}, "0.00"},
                           {{true}, "-1.00"},
                           {{u"1,234.5"}, "1,234.50"},
                           {{u"&HFF"}, "255.00"},
                           {{Currency{12345678}}, "1,234.57"},
                           {{Decimal{.low = 12345, .scale = 3}}, "12.35"},
                           {{1.1F, 4}, "1.1000"},
                           {{Date{38000.5}}, "38,000.50"},
                           {{1e20}, "100,000,000,000,000,000,000.00"},
                           {{1e-300}, "0.00"}});
}

TEST_F(FormatFunctionsTest, FormatNumberRoundsDigitsHalfAwayFromZero) {
  Expect(u"FormatNumber", {{{0.5, 0}, "1"},
                           {{1.5, 0}, "2"},
                           {{2.5, 0}, "3"},
                           {{-0.5, 0}, "-1"},
                           {{-2.5, 0}, "-3"},
                           {{2.345, 2}, "2.35"},
                           {{1.005, 2}, "1.01"},
                           {{0.125, 2}, "0.13"},
                           {{0.4999999, 0}, "0"},
                           {{9.995, 2}, "10.00"},
                           {{999999.995, 2}, "1,000,000.00"},
                           {{0.1 + 0.2, 15}, "0.300000000000000"},
                           {{-0.001, 2}, "-0.00"}});
}

TEST_F(FormatFunctionsTest, FormatNumberTakesACountOfDecimals) {
  Expect(u"FormatNumber", {{{1.5, -1}, "1.50"},
                           {{1.5, 0}, "2"},
                           {{1.5, 5}, "1.50000"},
                           {{1.5, u"3"}, "1.500"},
                           {{1.5, m_Missing}, "1.50"},
                           {{1.5, 1.5}, "1.50"},
                           {{1.5, -2}, "Error 5"},
                           {{1.5, 256}, "Error 5"},
                           {{1.5, m_Null}, "Error 94"},
                           {{1.5, u"x"}, "Error 13"}});
  EXPECT_EQ(m_Calls.Answer(u"FormatNumber", {1, 255}).size(), std::string("String 1.").size() + 255);
}

TEST_F(FormatFunctionsTest, FormatNumberKnowsItsThreeStates) {
  Expect(u"FormatNumber", {{{0.5, 2, 0}, ".50"},
                           {{-0.5, 2, 0}, "-.50"},
                           {{0.5, 2, -1}, "0.50"},
                           {{0.5, 2, -2}, "0.50"},
                           {{0.5, 2, false}, ".50"},
                           {{0.2, 0, 0}, "0"},
                           {{10.5, 2, 0}, "10.50"},
                           {{-0.5, 2, 0, -1}, "(.50)"},
                           {{-0.5, 2, -1, 0}, "-0.50"},
                           {{-0.5, 2, -1, true}, "(0.50)"},
                           {{-0.5, 2, -2, -2}, "-0.50"},
                           {{0.5, 2, -1, -1}, "0.50"},
                           {{1234567, 0, -1, 0, 0}, "1234567"},
                           {{1234567, 0, -1, 0, -1}, "1,234,567"},
                           {{-1234567, m_Missing, m_Missing, -1}, "(1,234,567.00)"},
                           {{1, 2, 1}, "Error 5"},
                           {{1, 2, 0, 2}, "Error 5"},
                           {{1, 2, 0, 0, -3}, "Error 5"},
                           {{1, 2, m_Null}, "Error 94"},
                           {{1, 2, u"x"}, "Error 13"}});
}

TEST_F(FormatFunctionsTest, FailForWhatIsNoNumber) {
  for (const char16_t* name : {u"FormatNumber", u"FormatCurrency", u"FormatPercent"}) {
    Expect(name, {{{m_Null}, "Error 13"},
                  {{u""}, "Error 13"},
                  {{u"abc"}, "Error 13"},
                  {{m_Missing}, "Error 13"},
                  {{std::numeric_limits<double>::infinity()}, "Error 6"}});
    EXPECT_EQ(m_Calls.Answer(name, {Variant::Nothing()}), "Error 91");
  }
}

TEST_F(FormatFunctionsTest, FormatPercentMultipliesExactly) {
  Expect(u"FormatPercent", {{{0.125}, "12.50%"},
                            {{1}, "100.00%"},
                            {{0}, "0.00%"},
                            {{0.29, 0}, "29%"},
                            {{-0.5}, "-50.00%"},
                            {{-0.77, 2, 0, -1}, "(77.00%)"},
                            {{0.005, 2, 0}, ".50%"},
                            {{12.345, 1}, "1,234.5%"},
                            {{12.345, 1, -1, 0, 0}, "1234.5%"},
                            {{0.678999}, "67.90%"},
                            {{0.00005}, "0.01%"}});
  m_Calls.SetLocale(u"de-de");
  Expect(u"FormatPercent", {{{12.5}, "1.250,00%"}});
}

TEST_F(FormatFunctionsTest, FormatCurrencyHasParenthesesInAmerica) {
  Expect(u"FormatCurrency", {{{1234.5}, "$1,234.50"},
                             {{-1234.5}, "($1,234.50)"},
                             {{-1234.5, 2, -1, 0}, "-$1,234.50"},
                             {{-1234.5, 2, -1, -1}, "($1,234.50)"},
                             {{0.5, 2, 0}, "$.50"},
                             {{1234567, 0}, "$1,234,567"},
                             {{1234567, 0, -2, -2, 0}, "$1234567"},
                             {{u"$12.50"}, "$12.50"},
                             {{Currency{-5000}}, "($0.50)"},
                             {{1.005}, "$1.01"},
                             {{1, -2}, "Error 5"},
                             {{1, 2, 5}, "Error 5"}});
}

struct CurrencyOf {
  const char16_t* locale;
  const char* positive;
  const char* negative;
  const char* inParentheses;
};

class FormatCurrencyIn : public testing::TestWithParam<CurrencyOf> {};

TEST_P(FormatCurrencyIn, FollowsTheCountry) {
  LibraryCalls calls;
  calls.SetLocale(GetParam().locale);
  const auto answer = [&](std::vector<Variant> args) {
    return calls.Call(u"FormatCurrency", std::move(args)).String().ToUtf8();
  };
  EXPECT_EQ(answer({1234.5}), GetParam().positive);
  EXPECT_EQ(answer({-1234.5}), GetParam().negative);
  EXPECT_EQ(answer({-1234.5, 2, -1, -1}), GetParam().inParentheses);
}

INSTANTIATE_TEST_SUITE_P(
    All, FormatCurrencyIn,
    testing::Values(CurrencyOf{u"en-us", "$1,234.50", "($1,234.50)", "($1,234.50)"},
                    CurrencyOf{u"en-gb", "£1,234.50", "-£1,234.50", "(£1,234.50)"},
                    CurrencyOf{u"it-it", "1.234,50 €", "-1.234,50 €", "(1.234,50 €)"},
                    CurrencyOf{u"de-de", "1.234,50 €", "-1.234,50 €", "(1.234,50 €)"},
                    CurrencyOf{u"de-ch", "CHF 1'234.50", "CHF-1'234.50", "(CHF 1'234.50)"},
                    CurrencyOf{u"fr-fr", "1\u00a0234,50 €", "-1\u00a0234,50 €", "(1\u00a0234,50 €)"},
                    CurrencyOf{u"pt-br", "R$ 1.234,50", "-R$ 1.234,50", "(R$ 1.234,50)"},
                    CurrencyOf{u"nl-nl", "€ 1.234,50", "€ -1.234,50", "(€ 1.234,50)"},
                    CurrencyOf{u"sv-se", "1\u00a0234,50 kr", "-1\u00a0234,50 kr", "(1\u00a0234,50 kr)"},
                    CurrencyOf{u"da-dk", "1.234,50 kr.", "-1.234,50 kr.", "(1.234,50 kr.)"},
                    CurrencyOf{u"nb-no", "kr 1\u00a0234,50", "-kr 1\u00a0234,50", "(kr 1\u00a0234,50)"}));

TEST_F(FormatFunctionsTest, FormatDateTimeHasFiveForms) {
  const Variant moment = u"11/21/2026 3:45:30 PM";
  Expect(u"FormatDateTime", {{{moment}, "11/21/2026 3:45:30 PM"},
                             {{moment, 0}, "11/21/2026 3:45:30 PM"},
                             {{moment, m_Missing}, "11/21/2026 3:45:30 PM"},
                             {{moment, 1}, "Saturday, November 21, 2026"},
                             {{moment, 2}, "11/21/2026"},
                             {{moment, 3}, "3:45:30 PM"},
                             {{moment, 4}, "15:45"},
                             {{u"11/21/2026"}, "11/21/2026"},
                             {{u"11/21/2026", 3}, "12:00:00 AM"},
                             {{u"3:05", 4}, "03:05"},
                             {{u"3:45 PM"}, "3:45:00 PM"},
                             {{38000}, "1/14/2004"},
                             {{Variant()}, "12:00:00 AM"},
                             {{Variant(), 2}, "12/30/1899"},
                             {{-1.25, 0}, "12/29/1899 6:00:00 AM"},
                             {{-657434, 1}, "Friday, January 1, 0100"}});
}

TEST_F(FormatFunctionsTest, FormatDateTimeFailsForOtherFormsAndValues) {
  Expect(u"FormatDateTime", {{{1, 5}, "Error 5"},
                             {{1, -1}, "Error 5"},
                             {{1, u"x"}, "Error 13"},
                             {{m_Null}, "Error 13"},
                             {{u"abc"}, "Error 13"},
                             {{u""}, "Error 13"},
                             {{m_Missing}, "Error 13"},
                             {{1e9}, "Error 6"}});
}

TEST_F(FormatFunctionsTest, FormatDateTimeFollowsTheLocale) {
  const Variant moment = Date{46347 + 15.0 / 24 + 45.0 / 1440};
  m_Calls.SetLocale(u"it-it");
  Expect(u"FormatDateTime", {{{moment}, "21/11/2026 15:45:00"},
                             {{moment, 1}, "sabato 21 novembre 2026"},
                             {{moment, 2}, "21/11/2026"},
                             {{moment, 3}, "15:45:00"},
                             {{moment, 4}, "15:45"}});
  m_Calls.SetLocale(u"sv-se");
  Expect(u"FormatDateTime", {{{moment}, "2026-11-21 15:45:00"}, {{moment, 1}, "den 21 november 2026"}});
}

TEST_F(FormatFunctionsTest, FormatNumberFollowsTheLocale) {
  m_Calls.SetLocale(u"it-it");
  Expect(u"FormatNumber", {{{1234567.891}, "1.234.567,89"}, {{u"1234,5"}, "1.234,50"}, {{0.5, 1, 0}, ",5"}});
  m_Calls.SetLocale(u"fr-fr");
  Expect(u"FormatNumber", {{{-1234.5}, "-1\u00a0234,50"}});
}

}  // namespace
}  // namespace cardwright::vbscript
