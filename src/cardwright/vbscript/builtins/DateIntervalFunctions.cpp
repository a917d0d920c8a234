// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iterator>
#include <limits>
#include <string_view>

#include "cardwright/automation/Calendar.h"
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/builtins/BuiltinArguments.h"
#include "cardwright/vbscript/builtins/LinearDate.h"
#include "cardwright/vbscript/builtins/Weeks.h"

// Arithmetic with dates in units from years to seconds.
namespace cardwright::vbscript {

namespace {

enum class Interval { Year, Quarter, Month, DayOfYear, Day, Weekday, Week, Hour, Minute, Second };

struct IntervalName {
  std::u16string_view name;
  Interval interval;
};
constexpr IntervalName kIntervalNames[] = {
    {u"yyyy", Interval::Year},   {u"q", Interval::Quarter}, {u"m", Interval::Month},
    {u"y", Interval::DayOfYear}, {u"d", Interval::Day},     {u"w", Interval::Weekday},
    {u"ww", Interval::Week},     {u"h", Interval::Hour},    {u"n", Interval::Minute},
    {u"s", Interval::Second},
};

// Error 5 for another name than those above, in any case; 94 for Null.
Interval ReadInterval(const Variant& value) {
  const Text text = ToText(value);
  const auto* found = std::ranges::find_if(
      kIntervalNames, [&](const IntervalName& row) { return EqualsNoCase(row.name, text); });
  if (found == std::end(kIntervalNames)) Raise(ErrorNumber::InvalidCall);
  return found->interval;
}

constexpr std::int64_t kSecondsPerHour = 3600;
constexpr std::int64_t kSecondsPerMinute = 60;

int QuarterOf(const CalendarTime& time) noexcept { return (time.month - 1) / 3 + 1; }
std::int64_t MonthsOf(const CalendarTime& time) noexcept { return std::int64_t{time.year} * 12 + time.month; }
std::int64_t QuartersOf(const CalendarTime& time) noexcept {
  return std::int64_t{time.year} * 4 + QuarterOf(time);
}

// "y" and "w" add days like "d": only DatePart tells them apart.
Date AddUnits(Interval interval, std::int64_t count, const CalendarTime& time) {
  const auto later = [&](std::int64_t unit) { return DateOfSeconds(SecondNumber(time) + count * unit); };
  switch (interval) {
    case Interval::Year: return AddMonths(time, count * 12);
    case Interval::Quarter: return AddMonths(time, count * 3);
    case Interval::Month: return AddMonths(time, count);
    case Interval::DayOfYear:
    case Interval::Day:
    case Interval::Weekday: return later(kSecondsPerDay);
    case Interval::Week: return later(7 * kSecondsPerDay);
    case Interval::Hour: return later(kSecondsPerHour);
    case Interval::Minute: return later(kSecondsPerMinute);
    case Interval::Second: return later(1);
  }
  return {};
}

// How often a unit begins between the two dates. "w" counts whole weeks from the first date instead, "ww" the
// first days of weeks.
std::int64_t UnitsBetween(Interval interval, const CalendarTime& from, const CalendarTime& to, int firstDay) {
  const auto crossed = [&](std::int64_t unit) {
    return FloorDivide(SecondNumber(to), unit) - FloorDivide(SecondNumber(from), unit);
  };
  switch (interval) {
    case Interval::Year: return to.year - from.year;
    case Interval::Quarter: return QuartersOf(to) - QuartersOf(from);
    case Interval::Month: return MonthsOf(to) - MonthsOf(from);
    case Interval::DayOfYear:
    case Interval::Day: return DayNumber(to) - DayNumber(from);
    case Interval::Weekday: return (DayNumber(to) - DayNumber(from)) / 7;
    case Interval::Week: return WeekBoundaries(DayNumber(from), DayNumber(to), firstDay);
    case Interval::Hour: return crossed(kSecondsPerHour);
    case Interval::Minute: return crossed(kSecondsPerMinute);
    case Interval::Second: return crossed(1);
  }
  return 0;
}

int PartOf(Interval interval, const CalendarTime& time, int firstDay, FirstWeek firstWeek) noexcept {
  switch (interval) {
    case Interval::Year: return time.year;
    case Interval::Quarter: return QuarterOf(time);
    case Interval::Month: return time.month;
    case Interval::DayOfYear: return DayOfYear(time);
    case Interval::Day: return time.day;
    case Interval::Weekday: return WeekdayNumber(time.weekday, firstDay);
    case Interval::Week: return WeekOfYear(time, DayNumber(time), firstDay, firstWeek);
    case Interval::Hour: return time.hour;
    case Interval::Minute: return time.minute;
    case Interval::Second: return time.second;
  }
  return 0;
}

// DateAdd(interval, number, date): the day of a month that lacks it becomes the last one. Null for the date
// gives Null.
Variant DateAddFunction(Context&, Args args) {
  const Interval interval = ReadInterval(args[0]);
  const std::int32_t count = ToLong(args[1]);
  if (IsNullArgument(args, 2)) return Variant::Null();
  return AddUnits(interval, count, ToCalendar(ToDate(args[2])));
}

// DateDiff(interval, date1, date2[, firstdayofweek[, firstweekofyear]]): Null for a date gives Null.
Variant DateDiffFunction(Context& context, Args args) {
  const Interval interval = ReadInterval(args[0]);
  const int firstDay = ReadFirstDay(context, args, 3);
  ReadFirstWeek(context, args, 4);  // has no effect, but is checked
  if (IsNullArgument(args, 1) || IsNullArgument(args, 2)) return Variant::Null();
  const CalendarTime from = ToCalendar(ToDate(args[1]));
  const CalendarTime to = ToCalendar(ToDate(args[2]));
  const std::int64_t count = UnitsBetween(interval, from, to, firstDay);
  using Limits = std::numeric_limits<std::int32_t>;
  if (count < Limits::min() || count > Limits::max()) Raise(ErrorNumber::Overflow);
  return static_cast<std::int32_t>(count);
}

// DatePart(interval, date[, firstdayofweek[, firstweekofyear]]): Null for the date gives Null.
Variant DatePartFunction(Context& context, Args args) {
  const Interval interval = ReadInterval(args[0]);
  const int firstDay = ReadFirstDay(context, args, 2);
  const FirstWeek firstWeek = ReadFirstWeek(context, args, 3);
  if (IsNullArgument(args, 1)) return Variant::Null();
  return static_cast<std::int16_t>(PartOf(interval, ToCalendar(ToDate(args[1])), firstDay, firstWeek));
}

constexpr Builtin kDateIntervalFunctions[] = {
    {u"DateAdd", DateAddFunction, 3, 3},
    {u"DateDiff", DateDiffFunction, 3, 5},
    {u"DatePart", DatePartFunction, 2, 4},
};

}  // namespace

std::span<const Builtin> DateIntervalFunctions() { return kDateIntervalFunctions; }

}  // namespace cardwright::vbscript
