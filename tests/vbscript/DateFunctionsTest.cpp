// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <ctime>

#include "vbscript/LibraryCalls.h"

namespace cardwright::vbscript {
namespace {

struct DateCase {
  const char16_t* name;
  std::vector<Variant> args;
  const char* answer;
};

class DateFunctionsTest : public testing::Test {
 protected:
  void Expect(const std::vector<DateCase>& cases) {
    for (const DateCase& c : cases) {
      std::string call = Text(c.name).ToUtf8() + "(";
      for (const Variant& arg : c.args) {
        call += (arg.IsNull() ? "Null" : arg.IsMissing() ? "" : ToText(arg).ToUtf8()) + ", ";
      }
      EXPECT_EQ(m_Calls.Answer(c.name, c.args), c.answer) << call << ")";
    }
  }

  LibraryCalls m_Calls;
  const Variant m_Null = Variant::Null();
  const Variant m_Missing = Variant::Missing();
};

TEST_F(DateFunctionsTest, TakeDatesApart) {
  const Variant moment = u"11/21/2026 3:45:30 PM";
  Expect({{u"Year", {moment}, "Integer 2026"},
          {u"Month", {moment}, "Integer 11"},
          {u"Day", {moment}, "Integer 21"},
          {u"Hour", {moment}, "Integer 15"},
          {u"Minute", {moment}, "Integer 45"},
          {u"Second", {moment}, "Integer 30"},
          {u"Weekday", {moment}, "Integer 7"},
          {u"Year", {0}, "Integer 1899"},
          {u"Day", {Variant()}, "Integer 30"},
          {u"Day", {-1.25}, "Integer 29"},
          {u"Hour", {-1.25}, "Integer 6"},
          {u"Hour", {-0.25}, "Integer 6"},
          {u"Year", {u"9/9/99"}, "Integer 1999"},
          {u"Second", {0.999999}, "Integer 0"},
          {u"Day", {0.999999}, "Integer 31"}});
}

TEST_F(DateFunctionsTest, AnswerNullForNull) {
  for (const char16_t* name :
       {u"Year", u"Month", u"Day", u"Hour", u"Minute", u"Second", u"Weekday", u"TimeValue"}) {
    EXPECT_EQ(m_Calls.Answer(name, {Variant::Null()}), "Null");
  }
  Expect({{u"DateAdd", {u"d", 1, m_Null}, "Null"},
          {u"DateDiff", {u"d", m_Null, 1}, "Null"},
          {u"DateDiff", {u"d", 1, m_Null}, "Null"},
          {u"DatePart", {u"d", m_Null}, "Null"}});
}

TEST_F(DateFunctionsTest, FailForWhatIsNoDate) {
  Expect({{u"Year", {u"abc"}, "Error 13"},
          {u"Year", {u""}, "Error 13"},
          {u"Year", {1e9}, "Error 6"},
          {u"Year", {m_Missing}, "Error 13"},
          {u"Weekday", {u"x"}, "Error 13"},
          {u"DateAdd", {u"d", 1, u"x"}, "Error 13"},
          {u"DateAdd", {u"d", u"x", 1}, "Error 13"},
          {u"DateAdd", {u"d", m_Null, 1}, "Error 94"},
          {u"DateAdd", {m_Null, 1, 1}, "Error 94"},
          {u"DateDiff", {u"d", u"x", 1}, "Error 13"},
          {u"DatePart", {u"d", u"2/30/2026"}, "Error 13"},
          {u"Year", {2958466}, "Error 6"},
          {u"Year", {-657435}, "Error 6"}});
}

TEST_F(DateFunctionsTest, WeekdayCountsFromTheFirstDay) {
  const Variant saturday = u"11/21/2026";
  Expect({{u"Weekday", {saturday, 1}, "Integer 7"},
          {u"Weekday", {saturday, 2}, "Integer 6"},
          {u"Weekday", {saturday, 7}, "Integer 1"},
          {u"Weekday", {saturday, 0}, "Integer 7"},
          {u"Weekday", {saturday, m_Missing}, "Integer 7"},
          {u"Weekday", {saturday, -1}, "Error 5"},
          {u"Weekday", {saturday, 8}, "Error 5"},
          {u"Weekday", {saturday, m_Null}, "Error 94"},
          {u"Weekday", {saturday, u"x"}, "Error 13"},
          {u"Weekday", {-657434}, "Integer 6"}});
  m_Calls.SetLocale(u"it-it");
  Expect({{u"Weekday", {u"21/11/2026", 0}, "Integer 6"}, {u"Weekday", {u"21/11/2026"}, "Integer 7"}});
}

TEST_F(DateFunctionsTest, DateAddKnowsEveryInterval) {
  const Variant from = u"1/31/2024 10:20:30";
  Expect({{u"DateAdd", {u"yyyy", 1, from}, "Date 1/31/2025 10:20:30 AM"},
          {u"DateAdd", {u"q", 1, from}, "Date 4/30/2024 10:20:30 AM"},
          {u"DateAdd", {u"m", 1, from}, "Date 2/29/2024 10:20:30 AM"},
          {u"DateAdd", {u"y", 1, from}, "Date 2/1/2024 10:20:30 AM"},
          {u"DateAdd", {u"d", 30, from}, "Date 3/1/2024 10:20:30 AM"},
          {u"DateAdd", {u"w", 7, from}, "Date 2/7/2024 10:20:30 AM"},
          {u"DateAdd", {u"ww", 1, from}, "Date 2/7/2024 10:20:30 AM"},
          {u"DateAdd", {u"h", 14, from}, "Date 2/1/2024 12:20:30 AM"},
          {u"DateAdd", {u"n", -21, from}, "Date 1/31/2024 9:59:30 AM"},
          {u"DateAdd", {u"s", 90, from}, "Date 1/31/2024 10:22:00 AM"},
          {u"DateAdd", {u"YYYY", -4, u"2/29/2024"}, "Date 2/29/2020"},
          {u"DateAdd", {u"yyyy", 1, u"2/29/2024"}, "Date 2/28/2025"},
          {u"DateAdd", {u"M", 1, u"31-Jan-95"}, "Date 2/28/1995"},
          {u"DateAdd", {u"m", -1, u"3/31/2023"}, "Date 2/28/2023"},
          {u"DateAdd", {u"m", 12, u"12/31/2023"}, "Date 12/31/2024"},
          {u"DateAdd", {u"m", -13, u"1/31/2024"}, "Date 12/31/2022"},
          {u"DateAdd", {u"h", 1, u"11:30 PM"}, "Date 12/31/1899 12:30:00 AM"},
          {u"DateAdd", {u"n", -30, u"0:15"}, "Date 12/29/1899 11:45:00 PM"}});
}

TEST_F(DateFunctionsTest, DateAddRoundsItsNumber) {
  Expect({{u"DateAdd", {u"d", 1.6, u"1/1/2026"}, "Date 1/3/2026"},
          {u"DateAdd", {u"d", 2.5, u"1/1/2026"}, "Date 1/3/2026"},
          {u"DateAdd", {u"d", u"3", u"1/1/2026"}, "Date 1/4/2026"},
          {u"DateAdd", {u"d", Variant(), u"1/1/2026"}, "Date 1/1/2026"},
          {u"DateAdd", {u"s", 3e9, u"1/1/2026"}, "Error 6"}});
}

TEST_F(DateFunctionsTest, DateAddStaysInTheCalendar) {
  Expect({{u"DateAdd", {u"yyyy", -1927, u"1/1/2026"}, "Error 5"},
          {u"DateAdd", {u"yyyy", -1926, u"1/1/2026"}, "Date 1/1/0100"},
          {u"DateAdd", {u"yyyy", 7974, u"1/1/2026"}, "Error 5"},
          {u"DateAdd", {u"yyyy", 2147483647, u"1/1/2026"}, "Error 5"},
          {u"DateAdd", {u"ww", static_cast<std::int32_t>(-2147483647 - 1), u"1/1/2026"}, "Error 5"},
          {u"DateAdd", {u"d", 1, u"12/31/9999"}, "Error 5"},
          {u"DateAdd", {u"d", -1, u"1/1/100"}, "Error 5"},
          {u"DateAdd", {u"s", -1, u"1/1/100"}, "Error 5"},
          {u"DateAdd", {u"m", -1, u"1/1/100"}, "Error 5"},
          {u"DateAdd", {u"h", 23, u"12/31/9999"}, "Date 12/31/9999 11:00:00 PM"}});
}

TEST_F(DateFunctionsTest, CountTimeForwardBeforeDayZero) {
  EXPECT_DOUBLE_EQ(m_Calls.Call(u"DateAdd", {u"h", 6, Date{-2}}).Double(), -2.25);
  EXPECT_DOUBLE_EQ(m_Calls.Call(u"DateAdd", {u"h", 12, Date{-1.75}}).Double(), 0.25);
  EXPECT_DOUBLE_EQ(m_Calls.Call(u"DateAdd", {u"h", -6, Date{0}}).Double(), -1.75);
  Expect({{u"DateDiff", {u"h", Date{-1.75}, Date{0}}, "Long 6"},
          {u"DateDiff", {u"d", Date{-1.75}, Date{0}}, "Long 1"},
          {u"DateDiff", {u"h", Date{-2.25}, Date{-1.25}}, "Long 24"},
          {u"TimeValue", {Date{-1.25}}, "Date 6:00:00 AM"},
          {u"DateValue", {Date{-1.25}}, "Date 12/29/1899"}});
}

TEST_F(DateFunctionsTest, RefuseOtherIntervals) {
  for (const char16_t* interval : {u"", u"yy", u"x", u"yyyyy", u" d", u"mm", u"hh"}) {
    EXPECT_EQ(m_Calls.Answer(u"DateAdd", {interval, 1, 1}), "Error 5");
    EXPECT_EQ(m_Calls.Answer(u"DateDiff", {interval, 1, 1}), "Error 5");
    EXPECT_EQ(m_Calls.Answer(u"DatePart", {interval, 1}), "Error 5");
  }
}

TEST_F(DateFunctionsTest, DateDiffCountsBoundaries) {
  const Variant last = u"12/31/2025 23:59:59";
  const Variant first = u"1/1/2026";
  Expect({{u"DateDiff", {u"yyyy", last, first}, "Long 1"},
          {u"DateDiff", {u"q", last, first}, "Long 1"},
          {u"DateDiff", {u"m", last, first}, "Long 1"},
          {u"DateDiff", {u"y", last, first}, "Long 1"},
          {u"DateDiff", {u"d", last, first}, "Long 1"},
          {u"DateDiff", {u"w", last, first}, "Long 0"},
          {u"DateDiff", {u"ww", last, first}, "Long 0"},
          {u"DateDiff", {u"h", last, first}, "Long 1"},
          {u"DateDiff", {u"n", last, first}, "Long 1"},
          {u"DateDiff", {u"s", last, first}, "Long 1"},
          {u"DateDiff", {u"YYYY", first, last}, "Long -1"},
          {u"DateDiff", {u"s", first, last}, "Long -1"},
          {u"DateDiff", {u"m", u"1/31/2026", u"2/1/2025"}, "Long -11"},
          {u"DateDiff", {u"h", u"10:59", u"11:00"}, "Long 1"},
          {u"DateDiff", {u"h", u"10:00", u"10:59"}, "Long 0"},
          {u"DateDiff", {u"n", u"10:00:59", u"10:01:00"}, "Long 1"},
          {u"DateDiff", {u"s", u"1/1/1900", u"1/1/2000"}, "Error 6"},
          {u"DateDiff", {u"n", u"1/1/1900", u"1/1/2000"}, "Long 52594560"},
          {u"DateDiff", {u"d", u"1/1/100", u"12/31/9999"}, "Long 3615899"}});
}

TEST_F(DateFunctionsTest, DateDiffTellsWholeWeeksFromWeekBoundaries) {
  // 11/15 and 11/22/2026 are Sundays.
  Expect({{u"DateDiff", {u"w", u"11/16/2026", u"11/22/2026"}, "Long 0"},
          {u"DateDiff", {u"w", u"11/16/2026", u"11/23/2026"}, "Long 1"},
          {u"DateDiff", {u"w", u"11/23/2026", u"11/16/2026"}, "Long -1"},
          {u"DateDiff", {u"w", u"11/22/2026", u"11/16/2026"}, "Long 0"},
          {u"DateDiff", {u"ww", u"11/21/2026", u"11/22/2026"}, "Long 1"},
          {u"DateDiff", {u"ww", u"11/22/2026", u"11/28/2026"}, "Long 0"},
          {u"DateDiff", {u"ww", u"11/22/2026", u"11/21/2026"}, "Long -1"},
          {u"DateDiff", {u"ww", u"11/21/2026", u"11/22/2026", 2}, "Long 0"},
          {u"DateDiff", {u"ww", u"11/22/2026", u"11/23/2026", 2}, "Long 1"},
          {u"DateDiff", {u"ww", u"11/20/2026", u"11/21/2026", 7}, "Long 1"},
          {u"DateDiff", {u"ww", -10, 10}, "Long 3"},
          {u"DateDiff", {u"ww", u"11/21/2026", u"11/22/2026", 8}, "Error 5"},
          {u"DateDiff", {u"ww", u"11/21/2026", u"11/22/2026", 1, 4}, "Error 5"},
          {u"DateDiff", {u"ww", u"11/21/2026", u"11/22/2026", 1, 3}, "Long 1"}});
  m_Calls.SetLocale(u"it-it");
  Expect({{u"DateDiff", {u"ww", u"21/11/2026", u"22/11/2026", 0}, "Long 0"}});
}

TEST_F(DateFunctionsTest, DatePartKnowsEveryInterval) {
  const Variant moment = u"11/21/2026 15:45:30";
  Expect({{u"DatePart", {u"yyyy", moment}, "Integer 2026"},
          {u"DatePart", {u"q", moment}, "Integer 4"},
          {u"DatePart", {u"m", moment}, "Integer 11"},
          {u"DatePart", {u"y", moment}, "Integer 325"},
          {u"DatePart", {u"d", moment}, "Integer 21"},
          {u"DatePart", {u"w", moment}, "Integer 7"},
          {u"DatePart", {u"w", moment, 2}, "Integer 6"},
          {u"DatePart", {u"ww", moment}, "Integer 47"},
          {u"DatePart", {u"H", moment}, "Integer 15"},
          {u"DatePart", {u"n", moment}, "Integer 45"},
          {u"DatePart", {u"s", moment}, "Integer 30"},
          {u"DatePart", {u"y", u"12/31/2024"}, "Integer 366"},
          {u"DatePart", {u"y", u"3/1/2023"}, "Integer 60"},
          {u"DatePart", {u"q", u"3/31/2026"}, "Integer 1"},
          {u"DatePart", {u"w", moment, 8}, "Error 5"},
          {u"DatePart", {u"ww", moment, 1, -1}, "Error 5"},
          {u"DatePart", {u"d", moment, 1, m_Null}, "Error 94"}});
}

TEST_F(DateFunctionsTest, WeeksFollowTheRuleOfTheFirstWeek) {
  Expect({{u"DatePart", {u"ww", u"1/1/2026"}, "Integer 1"},
          {u"DatePart", {u"ww", u"1/4/2026"}, "Integer 2"},
          {u"DatePart", {u"ww", u"12/31/2026"}, "Integer 53"},
          {u"DatePart", {u"ww", u"12/31/2000"}, "Integer 54"},
          {u"DatePart", {u"ww", u"1/1/2027", 2, 2}, "Integer 53"},
          {u"DatePart", {u"ww", u"1/4/2027", 2, 2}, "Integer 1"},
          {u"DatePart", {u"ww", u"1/1/2023", 2, 2}, "Integer 52"},
          {u"DatePart", {u"ww", u"12/31/2024", 2, 2}, "Integer 1"},
          {u"DatePart", {u"ww", u"12/30/2024", 2, 2}, "Integer 1"},
          {u"DatePart", {u"ww", u"1/3/2026", 1, 3}, "Integer 52"},
          {u"DatePart", {u"ww", u"1/4/2026", 1, 3}, "Integer 1"},
          {u"DatePart", {u"ww", u"1/1/2023", 1, 3}, "Integer 1"},
          {u"DatePart", {u"ww", u"12/31/2023", 1, 3}, "Integer 53"},
          {u"DatePart", {u"ww", u"1/1/100", 2, 2}, "Integer 53"},
          {u"DatePart", {u"ww", u"12/31/9999", 2, 2}, "Integer 52"}});
}

TEST_F(DateFunctionsTest, TheLastMondayBeforeALeapYearIsWeek53) {
  Expect({{u"DatePart", {u"ww", u"12/29/2003", 2, 2}, "Integer 53"},
          {u"DatePart", {u"ww", u"12/30/2003", 2, 2}, "Integer 1"},
          {u"DatePart", {u"ww", u"12/31/2007", 2, 2}, "Integer 53"},
          {u"DatePart", {u"ww", u"12/30/2019", 2, 2}, "Integer 53"},
          {u"DatePart", {u"ww", u"12/29/2014", 2, 2}, "Integer 1"}});
}

TEST_F(DateFunctionsTest, WeeksOfTheSystemAreTheLocales) {
  Expect({{u"DatePart", {u"ww", u"1/3/2027", 0, 0}, "Integer 2"}});
  m_Calls.SetLocale(u"de-de");
  Expect({{u"DatePart", {u"ww", u"3.1.2027", 0, 0}, "Integer 53"},
          {u"DatePart", {u"ww", u"3.1.2027"}, "Integer 2"}});
}

TEST_F(DateFunctionsTest, DateSerialCarriesOver) {
  Expect({{u"DateSerial", {2026, 11, 21}, "Date 11/21/2026"},
          {u"DateSerial", {2026, 14, 1}, "Date 2/1/2027"},
          {u"DateSerial", {2026, 0, 1}, "Date 12/1/2025"},
          {u"DateSerial", {2026, -11, 1}, "Date 1/1/2025"},
          {u"DateSerial", {2026, 1, 0}, "Date 12/31/2025"},
          {u"DateSerial", {2026, 2, 31}, "Date 3/3/2026"},
          {u"DateSerial", {2024, 3, 0}, "Date 2/29/2024"},
          {u"DateSerial", {2026, 1, -30}, "Date 12/1/2025"},
          {u"DateSerial", {1980, 6, 0}, "Date 5/31/1980"},
          {u"DateSerial", {0, 1, 1}, "Date 1/1/2000"},
          {u"DateSerial", {29, 1, 1}, "Date 1/1/2029"},
          {u"DateSerial", {30, 1, 1}, "Date 1/1/1930"},
          {u"DateSerial", {99, 13, 1}, "Date 1/1/2000"},
          {u"DateSerial", {100, 1, 1}, "Date 1/1/0100"},
          {u"DateSerial", {u"2026", 1.5, Variant()}, "Date 1/31/2026"},
          {u"DateSerial", {10000, 1, 0}, "Date 12/31/9999"},
          {u"DateSerial", {9999, 12, 32}, "Error 5"},
          {u"DateSerial", {100, 1, 0}, "Error 5"},
          {u"DateSerial", {-1, 1, 1}, "Error 5"},
          {u"DateSerial", {32767, 32767, 32767}, "Error 5"},
          {u"DateSerial", {-32768, -32768, -32768}, "Error 5"},
          {u"DateSerial", {32768, 1, 1}, "Error 6"},
          {u"DateSerial", {2026, 40000, 1}, "Error 6"},
          {u"DateSerial", {m_Null, 1, 1}, "Error 94"},
          {u"DateSerial", {2026, u"x", 1}, "Error 13"}});
}

TEST_F(DateFunctionsTest, TimeSerialCarriesOver) {
  Expect({{u"TimeSerial", {15, 45, 30}, "Date 3:45:30 PM"},
          {u"TimeSerial", {0, 0, 0}, "Date 12:00:00 AM"},
          {u"TimeSerial", {6, -15, 0}, "Date 5:45:00 AM"},
          {u"TimeSerial", {0, 75, 90}, "Date 1:16:30 AM"},
          {u"TimeSerial", {25, 0, 0}, "Date 12/31/1899 1:00:00 AM"},
          {u"TimeSerial", {0, -15, 0}, "Date 12:15:00 AM"},
          {u"TimeSerial", {40000, 0, 0}, "Error 6"},
          {u"TimeSerial", {0, m_Null, 0}, "Error 94"},
          {u"TimeSerial", {u"x", 0, 0}, "Error 13"}});
  EXPECT_DOUBLE_EQ(m_Calls.Call(u"TimeSerial", {0, -15, 0}).Double(), -1 / 96.0);
  EXPECT_DOUBLE_EQ(m_Calls.Call(u"TimeSerial", {0, 0, 32767}).Double(), 32767 / 86400.0);
}

TEST_F(DateFunctionsTest, DateValueAndTimeValueTakeOneHalf) {
  Expect({{u"DateValue", {u"November 21, 2026 3:45 PM"}, "Date 11/21/2026"},
          {u"DateValue", {u"3:45 PM"}, "Date 12:00:00 AM"},
          {u"DateValue", {Date{46347.5}}, "Date 11/21/2026"},
          {u"DateValue", {u"11/21/2026 89:98"}, "Error 13"},
          {u"DateValue", {46347}, "Error 13"},
          {u"DateValue", {u"abc"}, "Error 13"},
          {u"DateValue", {Variant()}, "Error 13"},
          {u"DateValue", {m_Null}, "Error 94"},
          {u"TimeValue", {u"11/21/2026 3:45 PM"}, "Date 3:45:00 PM"},
          {u"TimeValue", {u"11/21/2026"}, "Date 12:00:00 AM"},
          {u"TimeValue", {Date{46347.5}}, "Date 12:00:00 PM"},
          {u"TimeValue", {u"13/32/2026 3:45"}, "Error 13"},
          {u"TimeValue", {0.5}, "Error 13"}});
}

TEST_F(DateFunctionsTest, NameMonthsAndDays) {
  Expect({{u"MonthName", {11}, "String November"},
          {u"MonthName", {11, true}, "String Nov"},
          {u"MonthName", {11, false}, "String November"},
          {u"MonthName", {11, m_Missing}, "String November"},
          {u"MonthName", {u"1"}, "String January"},
          {u"MonthName", {0}, "Error 5"},
          {u"MonthName", {13}, "Error 5"},
          {u"MonthName", {m_Null}, "Error 94"},
          {u"MonthName", {u"x"}, "Error 13"},
          {u"WeekdayName", {1}, "String Sunday"},
          {u"WeekdayName", {7, true}, "String Sat"},
          {u"WeekdayName", {1, false, 2}, "String Monday"},
          {u"WeekdayName", {7, m_Missing, 2}, "String Sunday"},
          {u"WeekdayName", {1, true, 0}, "String Sun"},
          {u"WeekdayName", {0}, "Error 5"},
          {u"WeekdayName", {8}, "Error 5"},
          {u"WeekdayName", {1, false, 8}, "Error 5"},
          {u"WeekdayName", {m_Null}, "Error 94"}});
  m_Calls.SetLocale(u"it-it");
  Expect({{u"MonthName", {11}, "String novembre"},
          {u"MonthName", {11, true}, "String nov"},
          {u"WeekdayName", {1}, "String domenica"},
          {u"WeekdayName", {1, true, 0}, "String lun"}});
}

/// One time zone for a scope.
class InZone {
 public:
  explicit InZone(const char* zone) {
    setenv("TZ", zone, 1);
    tzset();
  }
  InZone(const InZone&) = delete;
  InZone& operator=(const InZone&) = delete;
  ~InZone() {
    unsetenv("TZ");
    tzset();
  }
};

// Seconds of the machine's clock as the zone shows it.
double LocalSeconds(int hoursAhead) {
  return static_cast<double>(std::time(nullptr)) + 25569 * 86400.0 + hoursAhead * 3600.0;
}

TEST_F(DateFunctionsTest, TellTheTimeOfTheProcesssZone) {
  for (const auto& [zone, ahead] : {std::pair{"UTC0", 0}, {"EAST-14", 14}, {"WEST11", -11}}) {
    const InZone current(zone);
    const double before = LocalSeconds(ahead);
    const double now = m_Calls.Call(u"Now").Double() * 86400;
    EXPECT_GE(now, before - 1e-3) << zone;
    EXPECT_LE(now, LocalSeconds(ahead) + 1e-3) << zone;
  }
}

TEST_F(DateFunctionsTest, SplitNowIntoDateTimeAndTimer) {
  // Repeated where midnight or a second passes in between.
  for (int tries = 0; tries < 5; ++tries) {
    const double before = m_Calls.Call(u"Now").Double();
    const double sum = m_Calls.Call(u"Date").Double() + m_Calls.Call(u"Time").Double();
    const float timer = m_Calls.Call(u"Timer").Single();
    const double time = m_Calls.Call(u"Time").Double();
    if (m_Calls.Call(u"Now").Double() != before) continue;
    EXPECT_DOUBLE_EQ(sum, before);
    EXPECT_NEAR(timer, time * 86400, 1.01);
    return;
  }
  FAIL() << "no five calls within one second";
}

TEST_F(DateFunctionsTest, TimerIsASingleAndTheClockAnswersDates) {
  EXPECT_EQ(m_Calls.Call(u"Timer").Type(), VarType::Single);
  for (const char16_t* name : {u"Now", u"Date", u"Time"}) EXPECT_EQ(m_Calls.Call(name).Type(), VarType::Date);
}

}  // namespace
}  // namespace cardwright::vbscript
