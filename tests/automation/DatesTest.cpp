// SPDX-License-Identifier: MIT
#include <ctime>

#include "automation/Printing.h"
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/DateFormat.h"

namespace cardwright {
namespace {

constexpr double kFirstFebruary2026 = 46054;
constexpr double kSecondJanuary2026 = 46024;

double Clock(int hour, int minute, int second) { return (hour * 3600 + minute * 60 + second) / 86400.0; }

struct DateText {
  const char16_t* text;
  double days;
};

void ExpectDates(std::u16string_view locale, std::initializer_list<DateText> cases) {
  const InLocale current(locale);
  for (const DateText& c : cases) {
    EXPECT_TRUE(IsDate(c.text)) << Text(c.text).ToUtf8();
    EXPECT_NEAR(BestEffortOr(-1.0, [&] { return ToDate(c.text).days; }), c.days, 1e-9)
        << Text(c.text).ToUtf8();
  }
}

TEST(ToDate, ReadsManyFormsInAmerica) {
  ExpectDates(u"en-us", {{u"1/2/2026", kSecondJanuary2026},
                         {u"2/1/26", kFirstFebruary2026},
                         {u"2-1-2026", kFirstFebruary2026},
                         {u"2026-02-01", kFirstFebruary2026},
                         {u"2026/2/1", kFirstFebruary2026},
                         {u"13/2/2026", kFirstFebruary2026 + 12},
                         {u"1 Feb 2026", kFirstFebruary2026},
                         {u"February 1, 2026", kFirstFebruary2026},
                         {u"Feb 1 26", kFirstFebruary2026},
                         {u"1-feb-2026", kFirstFebruary2026},
                         {u"2026 Feb 1", kFirstFebruary2026},
                         {u"Feb 2026", kFirstFebruary2026},
                         {u"2/2026", kFirstFebruary2026},
                         {u"Sunday, February 1, 2026", kFirstFebruary2026},
                         {u"13:45", Clock(13, 45, 0)},
                         {u"1:45:30 PM", Clock(13, 45, 30)},
                         {u"12:00 am", 0},
                         {u"12:30pm", Clock(12, 30, 0)},
                         {u"3 PM", Clock(15, 0, 0)},
                         {u" 2/1/2026 13:45 ", kFirstFebruary2026 + Clock(13, 45, 0)},
                         {u"1:45:30 PM 2/1/2026", kFirstFebruary2026 + Clock(13, 45, 30)},
                         {u"2026-02-01 00:00:01", kFirstFebruary2026 + Clock(0, 0, 1)},
                         {u"12/30/1899", 0},
                         {u"12/29/1899 6:00", -1.25},
                         {u"1/1/100", -657434},
                         {u"12/31/9999", 2958465}});
}

TEST(ToDate, ReadsTheOrderOfOtherCountries) {
  ExpectDates(u"it-it", {{u"1/2/2026", kFirstFebruary2026},
                         {u"2/13/2026", kFirstFebruary2026 + 12},
                         {u"1 febbraio 2026", kFirstFebruary2026},
                         {u"1 FEB 2026", kFirstFebruary2026},
                         {u"1 February 2026", kFirstFebruary2026},
                         {u"01/02/2026 13:45:00", kFirstFebruary2026 + Clock(13, 45, 0)}});
  ExpectDates(u"de-de", {{u"1.2.2026", kFirstFebruary2026}, {u"1. Februar 2026", kFirstFebruary2026}});
  ExpectDates(u"fr-fr", {{u"1 févr. 2026", kFirstFebruary2026}, {u"1 FÉVRIER 2026", kFirstFebruary2026}});
  ExpectDates(u"sv-se", {{u"26-02-01", kFirstFebruary2026}, {u"2026-02-01", kFirstFebruary2026}});
}

TEST(ToDate, ReadsTimesWithPoints) {
  ExpectDates(u"en-us", {{u"13.50", Clock(13, 50, 0)},
                         {u"1.5", Clock(1, 5, 0)},
                         {u"0.12", Clock(0, 12, 0)},
                         {u"3.45 PM", Clock(15, 45, 0)},
                         {u"12.25.10", Clock(12, 25, 10)},
                         {u"2/1/2026 13.45", kFirstFebruary2026 + Clock(13, 45, 0)},
                         {u"13:55 AM", Clock(13, 55, 0)},
                         {u"13:55 PM", Clock(13, 55, 0)}});
  ExpectDates(u"it-it", {{u"15.30", Clock(15, 30, 0)},
                         {u"9.05", Clock(9, 5, 0)},
                         {u"10.11", Clock(10, 11, 0)},
                         {u"1.2.2026", kFirstFebruary2026},
                         {u"01.02.26", kFirstFebruary2026},
                         {u"1/2/2026 15.30", kFirstFebruary2026 + Clock(15, 30, 0)},
                         {u"1 feb 2026 15.30.20", kFirstFebruary2026 + Clock(15, 30, 20)}});
  ExpectDates(u"de-de",
              {{u"15.30", Clock(15, 30, 0)}, {u"1.2.2026 15.30", kFirstFebruary2026 + Clock(15, 30, 0)}});
  ExpectDates(u"da-dk", {{u"10.11", Clock(10, 11, 0)}});
}

TEST(ToDate, ReadsDaysWithPointsWhereTheyAreWrittenSo) {
  const InLocale current(u"de-de");
  EXPECT_EQ(ToDate(u"10.11").days, ToDate(u"10. November").days);
  EXPECT_EQ(ToDate(u"10.11.").days, ToDate(u"10. November").days) << "a point behind the month";
  EXPECT_EQ(ToDate(u"10. Nov.").days, ToDate(u"10. November").days);
}

TEST(ToDate, ReadsAYearWhereADayIsImpossible) {
  ExpectDates(u"en-us", {{u"29-Feb-01", 47150}, {u"2/30", 10990}, {u"30/2", 10990}, {u"30 Feb", 10990}});
}

TEST(ToDate, TakesBlanksAndCommasBetweenDayAndMonth) {
  const InLocale current(u"en-us");
  EXPECT_EQ(ToDate(u"30 6").days, ToDate(u"6/30").days);
  EXPECT_EQ(ToDate(u"30,6").days, ToDate(u"6/30").days);
  const InLocale commas(u"it-it");
  EXPECT_FALSE(IsDate(u"1,5"));
  const InLocale blanks(u"fr-fr");
  EXPECT_FALSE(IsDate(u"1 5"));
}

TEST(ToDate, ReadsLongDatesOfEveryCountry) {
  const double day = 46347.0;  // 2026-11-21
  ExpectDates(u"en-us",
              {{u"Saturday, November 21, 2026", day}, {u"Nov 21, 2026 3:45 PM", day + Clock(15, 45, 0)}});
  ExpectDates(u"it-it",
              {{u"sabato 21 novembre 2026", day}, {u"sab 21 nov 2026", day}, {u"21 nov. 2026", day}});
  ExpectDates(u"de-de",
              {{u"Samstag, 21. November 2026", day}, {u"21. Nov. 2026", day}, {u"21.11.2026.", day}});
  ExpectDates(u"fr-fr", {{u"samedi 21 novembre 2026", day}, {u"sam. 21 nov. 2026", day}});
  ExpectDates(u"es-es", {{u"sábado, 21 de noviembre de 2026", day}, {u"21 de nov de 2026", day}});
  ExpectDates(u"pt-br", {{u"sábado, 21 de novembro de 2026", day}});
  ExpectDates(u"sv-se", {{u"den 21 november 2026", day}, {u"2026-11-21 15:45", day + Clock(15, 45, 0)}});
  ExpectDates(u"pl-pl", {{u"sobota, 21 listopada 2026", day}, {u"21 listopad 2026", day}});
  ExpectDates(u"fi-fi", {{u"21. marraskuuta 2026", day}, {u"21.11.2026", day}});
  ExpectDates(u"nl-nl", {{u"zaterdag 21 november 2026", day}, {u"21-11-2026", day}});
  ExpectDates(u"nb-no", {{u"lørdag 21. november 2026", day}});
}

TEST(ToDate, PutsTwoDigitYearsBetween1930And2029) {
  ExpectDates(u"en-us", {{u"1/1/29", 47119}, {u"1/1/30", 10959}, {u"1/1/99", 36161}, {u"1/1/00", 36526}});
}

TEST(ToDate, TakesThisYearWhereNoneIsGiven) {
  const InLocale current(u"en-us");
  const std::time_t now = std::time(nullptr);
  const Text year = ToText(static_cast<std::int32_t>(std::localtime(&now)->tm_year + 1900));
  EXPECT_EQ(ToDate(u"3/4").days, ToDate(Text(u"3/4/") + year).days);
  EXPECT_EQ(ToDate(u"4 March").days, ToDate(u"3/4").days);
}

TEST(ToDate, RefusesWhatIsNoDate) {
  const InLocale current(u"en-us");
  for (const char16_t* text : {u"",
                               u"x",
                               u"2/30/2026",
                               u"2/29/2025",
                               u"32/13/2026",
                               u"0/1/2026",
                               u"1/2/99999",
                               u"12",
                               u"1.75",
                               u"1,75",
                               u"25:00",
                               u"12:60",
                               u"12:00:60",
                               u"13 PM",
                               u"1//2/2026",
                               u"/1/2/2026",
                               u"1/2/2026/",
                               u"1/2/3/4",
                               u"Feb",
                               u"Feb Mar 2026",
                               u"1/2/2026 x",
                               u"10:00 11:00",
                               u"12:",
                               u"-1/2/2026",
                               u"1 Foo 2026",
                               u"24.12",
                               u"12.25.2010",
                               u"1,500",
                               u"1.5.",
                               u"24:00",
                               u"10:00 9.30",
                               u"1.2.3.4",
                               u"2026-11-21T15:45"}) {
    EXPECT_FALSE(IsDate(text)) << Text(text).ToUtf8();
    EXPECT_EQ(ErrorOf([&] { ToDate(text); }), 13) << Text(text).ToUtf8();
  }
}

TEST(ToDate, TakesNumbersInItsRange) {
  EXPECT_EQ(ToDate(38000.5).days, 38000.5);
  EXPECT_EQ(ToDate(true).days, -1);
  EXPECT_EQ(ErrorOf([] { ToDate(2958466); }), 6);
  EXPECT_EQ(ErrorOf([] { ToDate(-657435); }), 6);
  EXPECT_EQ(ErrorOf([] { ToDate(Variant::Null()); }), 94);
}

TEST(IsDate, DistinguishesDatesFromNumbers) {
  EXPECT_TRUE(IsDate(Date{1}));
  EXPECT_FALSE(IsDate(38000));
  EXPECT_FALSE(IsDate(Variant::Null()));
  EXPECT_FALSE(IsDate(Variant::Nothing()));
}

struct PrintedDate {
  const char16_t* locale;
  double days;
  const char* text;
};

class DateToText : public testing::TestWithParam<PrintedDate> {};

TEST_P(DateToText, FollowsTheCountry) {
  const InLocale current(GetParam().locale);
  EXPECT_EQ(ToText(Date{GetParam().days}).ToUtf8(), GetParam().text);
  EXPECT_NEAR(ToDate(ToText(Date{GetParam().days})).days, GetParam().days, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(
    All, DateToText,
    testing::Values(PrintedDate{u"en-us", 0, "12:00:00 AM"}, PrintedDate{u"en-us", 0.5, "12:00:00 PM"},
                    PrintedDate{u"en-us", kSecondJanuary2026, "1/2/2026"},
                    PrintedDate{u"en-us", kSecondJanuary2026 + 0.75, "1/2/2026 6:00:00 PM"},
                    PrintedDate{u"en-us", -1.25, "12/29/1899 6:00:00 AM"},
                    PrintedDate{u"en-gb", kSecondJanuary2026, "02/01/2026"},
                    PrintedDate{u"it-it", kSecondJanuary2026 + 0.75, "02/01/2026 18:00:00"},
                    PrintedDate{u"it-it", 0.25, "06:00:00"},
                    PrintedDate{u"de-de", kSecondJanuary2026, "02.01.2026"},
                    PrintedDate{u"sv-se", kSecondJanuary2026, "2026-01-02"},
                    PrintedDate{u"fi-fi", kSecondJanuary2026, "2.1.2026"},
                    PrintedDate{u"en-us", -657434, "1/1/0100"}));

struct LongDate {
  const char16_t* locale;
  const char* text;
};

class FormatLongDateIn : public testing::TestWithParam<LongDate> {};

TEST_P(FormatLongDateIn, WritesWhatReadsBack) {
  const InLocale current(GetParam().locale);
  const Text text = FormatLongDate(ToCalendar(Date{46347}), Locale::Current());
  EXPECT_EQ(text.ToUtf8(), GetParam().text);
  EXPECT_EQ(ToDate(text).days, 46347);
}

INSTANTIATE_TEST_SUITE_P(
    All, FormatLongDateIn,
    testing::Values(
        LongDate{u"en-us", "Saturday, November 21, 2026"}, LongDate{u"en-gb", "21 November 2026"},
        LongDate{u"it-it", "sabato 21 novembre 2026"}, LongDate{u"de-de", "Samstag, 21. November 2026"},
        LongDate{u"de-ch", "Samstag, 21. November 2026"}, LongDate{u"fr-fr", "samedi 21 novembre 2026"},
        LongDate{u"es-es", "sábado, 21 de noviembre de 2026"},
        LongDate{u"pt-br", "sábado, 21 de novembro de 2026"},
        LongDate{u"pt-pt", "sábado, 21 de novembro de 2026"}, LongDate{u"nl-nl", "zaterdag 21 november 2026"},
        LongDate{u"sv-se", "den 21 november 2026"}, LongDate{u"pl-pl", "sobota, 21 listopada 2026"},
        LongDate{u"da-dk", "21. november 2026"}, LongDate{u"fi-fi", "21. marraskuuta 2026"},
        LongDate{u"nb-no", "lørdag 21. november 2026"}));

TEST(FormatLongDate, WritesOneDigitDaysAndFourDigitYears) {
  EXPECT_EQ(FormatLongDate(ToCalendar(Date{-657434}), *Locale::Find(u"en-us")).ToUtf8(),
            "Friday, January 1, 0100");
  EXPECT_EQ(FormatLongDate(ToCalendar(Date{46054}), *Locale::Find(u"en-gb")).ToUtf8(), "01 February 2026");
}

TEST(ToCalendar, DoesNotRoundBeyondTheLastDay) {
  EXPECT_EQ(ErrorOf([] { ToCalendar(Date{2958465.999999}); }), 6);
  EXPECT_EQ(ToCalendar(Date{2958465.9999}).year, 9999);
}

TEST(DateToText, RoundsToTheSecond) {
  const InLocale current(u"en-us");
  EXPECT_EQ(ToText(Date{kSecondJanuary2026 - 1e-7}).ToUtf8(), "1/2/2026");
  EXPECT_EQ(ToText(Date{0.999999}).ToUtf8(), "12/31/1899");
  EXPECT_EQ(ErrorOf([] { ToText(Date{1e9}); }), 6);
}

}  // namespace
}  // namespace cardwright
