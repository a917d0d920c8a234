// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/builtins/Weeks.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/builtins/BuiltinArguments.h"
#include "cardwright/vbscript/builtins/LinearDate.h"

namespace cardwright::vbscript {

namespace {

constexpr int kDaysPerWeek = 7;
constexpr int kWeekdayOfDayZero = 6;  // 1899-12-30 was a Saturday

bool IsLeap(int year) noexcept { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }
int DaysInYear(int year) noexcept { return IsLeap(year) ? 366 : 365; }

// Days from the first day of its week to the day.
int DaysIntoWeek(std::int64_t day, int firstDay) noexcept {
  const std::int64_t shifted = day + kWeekdayOfDayZero - firstDay;
  return static_cast<int>(shifted - FloorDivide(shifted, kDaysPerWeek) * kDaysPerWeek);
}

// Day on which the first week of a year begins; it may lie in the year before.
std::int64_t StartOfWeekOne(std::int64_t january1, int firstDay, FirstWeek rule) noexcept {
  const int into = DaysIntoWeek(january1, firstDay);
  const int daysInYear = kDaysPerWeek - into;
  const bool belongs =
      rule == FirstWeek::January1 || into == 0 || (rule == FirstWeek::FourDays && daysInYear >= 4);
  return january1 - into + (belongs ? 0 : kDaysPerWeek);
}

}  // namespace

int ReadFirstDay(const Context& context, Args args, std::size_t index) {
  const std::int32_t day = LongOr(args, index, 1);
  if (day < 0 || day > kDaysPerWeek) Raise(ErrorNumber::InvalidCall);
  return day == 0 ? context.locale->firstWeekday : day - 1;
}

FirstWeek ReadFirstWeek(const Context& context, Args args, std::size_t index) {
  const std::int32_t rule = LongOr(args, index, static_cast<int>(FirstWeek::January1));
  if (rule < 0 || rule > static_cast<int>(FirstWeek::Full)) Raise(ErrorNumber::InvalidCall);
  if (rule != 0) return static_cast<FirstWeek>(rule);
  return context.locale->fourDaysInFirstWeek ? FirstWeek::FourDays : FirstWeek::January1;
}

int WeekdayNumber(int weekday, int firstDay) noexcept {
  return (weekday - firstDay + kDaysPerWeek) % kDaysPerWeek + 1;
}

int WeekOfYear(const CalendarTime& time, std::int64_t day, int firstDay, FirstWeek firstWeek) noexcept {
  const std::int64_t january1 = day - DayOfYear(time) + 1;
  std::int64_t start = StartOfWeekOne(january1, firstDay, firstWeek);
  if (day < start) {
    start = StartOfWeekOne(january1 - DaysInYear(time.year - 1), firstDay, firstWeek);
  } else if (firstWeek == FirstWeek::FourDays) {
    const std::int64_t next = StartOfWeekOne(january1 + DaysInYear(time.year), firstDay, firstWeek);
    // Kept for scripts that know and correct it: the language calls the Monday on which week 1 of a leap year
    // begins week 53 (2003-12-29, 2007-12-31), and the rest of that week 1.
    const bool isOddMonday = day == next && IsLeap(time.year + 1);
    if (day >= next) return isOddMonday ? 53 : 1;
  }
  return static_cast<int>((day - start) / kDaysPerWeek) + 1;
}

std::int64_t WeekBoundaries(std::int64_t from, std::int64_t to, int firstDay) noexcept {
  const std::int64_t shift = kWeekdayOfDayZero - firstDay;
  return FloorDivide(to + shift, kDaysPerWeek) - FloorDivide(from + shift, kDaysPerWeek);
}

int DayOfYear(const CalendarTime& time) noexcept {
  constexpr int kDaysBefore[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
  return kDaysBefore[time.month - 1] + time.day + (time.month > 2 && IsLeap(time.year) ? 1 : 0);
}

}  // namespace cardwright::vbscript
