// SPDX-License-Identifier: MIT
#include "cardwright/automation/Calendar.h"
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/DateText.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/builtins/BuiltinArguments.h"
#include "cardwright/vbscript/builtins/LinearDate.h"
#include "cardwright/vbscript/builtins/LocalClock.h"
#include "cardwright/vbscript/builtins/Weeks.h"

// Dates and times: now, their parts, and new ones.
namespace cardwright::vbscript {

namespace {

// Date, Time, Now, and Timer: seconds since midnight as a Single.
Variant DateFunction(Context&, Args) { return Date{ReadLocalClock().days}; }

Variant TimeFunction(Context&, Args) { return Join(0, ReadLocalClock().secondOfDay); }

Variant NowFunction(Context&, Args) {
  const LocalClock now = ReadLocalClock();
  return Join(now.days, now.secondOfDay);
}

Variant TimerFunction(Context&, Args) { return ReadLocalClock().SecondsSinceMidnight(); }

// Year(date) to Second(date): Null gives Null.
template <int CalendarTime::*Part>
Variant DatePartOf(Context&, Args args) {
  if (IsNullArgument(args, 0)) return Variant::Null();
  return static_cast<std::int16_t>(ToCalendar(ToDate(args[0])).*Part);
}

// Weekday(date[, firstdayofweek]): Null gives Null.
Variant WeekdayFunction(Context& context, Args args) {
  const int firstDay = ReadFirstDay(context, args, 1);
  if (IsNullArgument(args, 0)) return Variant::Null();
  return static_cast<std::int16_t>(WeekdayNumber(ToCalendar(ToDate(args[0])).weekday, firstDay));
}

// The argument, a number from 1, as an index from 0; error 5 outside 1 to `count`.
std::size_t ReadNameIndex(const Variant& value, std::int32_t count) {
  const std::int32_t number = ToLong(value);
  if (number < 1 || number > count) Raise(ErrorNumber::InvalidCall);
  return static_cast<std::size_t>(number - 1);
}

bool IsAbbreviated(Args args) {
  const Variant* value = ArgumentAt(args, 1);
  return value && ToBoolean(*value);
}

// MonthName(month[, abbreviate])
Variant MonthNameFunction(Context& context, Args args) {
  const std::size_t month = ReadNameIndex(args[0], 12);
  const Locale& locale = *context.locale;
  return (IsAbbreviated(args) ? locale.shortMonths : locale.months)[month];
}

// WeekdayName(weekday[, abbreviate[, firstdayofweek]]): the weekday is counted from the first day of the
// week.
Variant WeekdayNameFunction(Context& context, Args args) {
  const std::size_t position = ReadNameIndex(args[0], 7);
  const bool isAbbreviated = IsAbbreviated(args);
  const std::size_t day = (position + static_cast<std::size_t>(ReadFirstDay(context, args, 2))) % 7;
  const Locale& locale = *context.locale;
  return (isAbbreviated ? locale.shortWeekdays : locale.weekdays)[day];
}

// Years of two digits are 1930 to 2029.
int FullYear(int year) noexcept {
  if (year < 0 || year > 99) return year;
  return year < 30 ? 2000 + year : 1900 + year;
}

// A date, or a string that reads as one; error 13 for anything else, numbers too.
CalendarTime ReadCalendarTime(const Context& context, const Variant& value) {
  const Variant plain = DefaultValue(value);
  if (plain.Type() == VarType::Date) return ToCalendar({plain.Double()});
  if (plain.IsNull()) Raise(ErrorNumber::InvalidUseOfNull);
  if (!plain.IsString()) Raise(ErrorNumber::TypeMismatch);
  const auto date = ReadDateText(plain.StringView(), *context.locale);
  if (!date) Raise(ErrorNumber::TypeMismatch);
  return ToCalendar(*date);
}

// DateSerial(year, month, day): months and days beyond their range lead into other years and months.
Variant DateSerialFunction(Context&, Args args) {
  const int year = ToInteger(args[0]);
  const int month = ToInteger(args[1]);
  const int day = ToInteger(args[2]);
  return DateOfDay(FullYear(year), month, day);
}

// TimeSerial(hour, minute, second): a negative sum stays a negative fraction, which scripts add to a date to
// take time off. As a date of its own it is a time of day 0: TimeSerial(0, -15, 0) shows a quarter past
// midnight.
Variant TimeSerialFunction(Context&, Args args) {
  const int hour = ToInteger(args[0]);
  const int minute = ToInteger(args[1]);
  const int second = ToInteger(args[2]);
  const double seconds = static_cast<double>(hour) * 3600 + static_cast<double>(minute) * 60 + second;
  return Date{seconds / static_cast<double>(kSecondsPerDay)};
}

// DateValue(date)
Variant DateValueFunction(Context& context, Args args) {
  return Date{static_cast<double>(DayNumber(ReadCalendarTime(context, args[0])))};
}

// TimeValue(time)
Variant TimeValueFunction(Context& context, Args args) {
  if (IsNullArgument(args, 0)) return Variant::Null();
  const CalendarTime time = ReadCalendarTime(context, args[0]);
  return Join(0, (time.hour * 60 + time.minute) * 60 + time.second);
}

constexpr Builtin kDateFunctions[] = {
    {u"Date", DateFunction, 0, 0},
    {u"DateSerial", DateSerialFunction, 3, 3},
    {u"DateValue", DateValueFunction, 1, 1},
    {u"Day", DatePartOf<&CalendarTime::day>, 1, 1},
    {u"Hour", DatePartOf<&CalendarTime::hour>, 1, 1},
    {u"Minute", DatePartOf<&CalendarTime::minute>, 1, 1},
    {u"Month", DatePartOf<&CalendarTime::month>, 1, 1},
    {u"MonthName", MonthNameFunction, 1, 2},
    {u"Now", NowFunction, 0, 0},
    {u"Second", DatePartOf<&CalendarTime::second>, 1, 1},
    {u"Time", TimeFunction, 0, 0},
    {u"Timer", TimerFunction, 0, 0},
    {u"TimeSerial", TimeSerialFunction, 3, 3},
    {u"TimeValue", TimeValueFunction, 1, 1},
    {u"Weekday", WeekdayFunction, 1, 2},
    {u"WeekdayName", WeekdayNameFunction, 1, 3},
    {u"Year", DatePartOf<&CalendarTime::year>, 1, 1},
};

}  // namespace

std::span<const Builtin> DateFunctions() { return kDateFunctions; }

}  // namespace cardwright::vbscript
