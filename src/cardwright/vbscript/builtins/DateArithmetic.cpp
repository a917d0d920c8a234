#include "cardwright/vbscript/builtins/DateArithmetic.h"

#include <limits>

#include "cardwright/automation/Calendar.h"
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/builtins/Arguments.h"
#include "cardwright/vbscript/builtins/DateLine.h"
#include "cardwright/vbscript/builtins/Intervals.h"
#include "cardwright/vbscript/builtins/Weeks.h"

namespace cardwright::vbscript {

namespace {

constexpr std::int64_t kSecondsPerHour = 3600;
constexpr std::int64_t kSecondsPerMinute = 60;

int QuarterOf(const CalendarTime& time) noexcept { return (time.month - 1) / 3 + 1; }
std::int64_t MonthsOf(const CalendarTime& time) noexcept { return std::int64_t{time.year} * 12 + time.month; }
std::int64_t QuartersOf(const CalendarTime& time) noexcept {
  return std::int64_t{time.year} * 4 + QuarterOf(time);
}

Date Add(Interval interval, std::int64_t count, const CalendarTime& time) {
  const auto later = [&](std::int64_t unit) { return DateOfSeconds(SecondNumber(time) + count * unit); };
  switch (interval) {
    case Interval::Year: return AddMonths(time, count * 12);
    case Interval::Quarter: return AddMonths(time, count * 3);
    case Interval::Month: return AddMonths(time, count);
    case Interval::DayOfYear:
    case Interval::Day:
    case Interval::Weekday: return later(kSecondsPerDay);  // every day is a weekday here
    case Interval::Week: return later(7 * kSecondsPerDay);
    case Interval::Hour: return later(kSecondsPerHour);
    case Interval::Minute: return later(kSecondsPerMinute);
    case Interval::Second: return later(1);
  }
  return {};
}

// How often a unit begins between the two, which for "w" are whole weeks.
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

int Part(Interval interval, const CalendarTime& time, int firstDay, FirstWeek firstWeek) noexcept {
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

}  // namespace

Variant DateAddFunction(Context&, Args args) {
  const Interval interval = ReadInterval(args[0]);
  const std::int32_t count = ToLong(args[1]);
  if (TakesNull(args, 2)) return Variant::Null();
  return Add(interval, count, ToCalendar(ToDate(args[2])));
}

Variant DateDiffFunction(Context& context, Args args) {
  const Interval interval = ReadInterval(args[0]);
  const int firstDay = ReadFirstDay(context, args, 3);
  ReadFirstWeek(context, args, 4);  // counts for nothing here, but must be right
  if (TakesNull(args, 1) || TakesNull(args, 2)) return Variant::Null();
  const CalendarTime from = ToCalendar(ToDate(args[1]));
  const CalendarTime to = ToCalendar(ToDate(args[2]));
  const std::int64_t count = UnitsBetween(interval, from, to, firstDay);
  using Limits = std::numeric_limits<std::int32_t>;
  if (count < Limits::min() || count > Limits::max()) Raise(ErrorNumber::Overflow);
  return static_cast<std::int32_t>(count);
}

Variant DatePartFunction(Context& context, Args args) {
  const Interval interval = ReadInterval(args[0]);
  const int firstDay = ReadFirstDay(context, args, 2);
  const FirstWeek firstWeek = ReadFirstWeek(context, args, 3);
  if (TakesNull(args, 1)) return Variant::Null();
  return static_cast<std::int16_t>(Part(interval, ToCalendar(ToDate(args[1])), firstDay, firstWeek));
}

}  // namespace cardwright::vbscript
