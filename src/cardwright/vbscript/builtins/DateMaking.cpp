#include "cardwright/vbscript/builtins/DateMaking.h"

#include "cardwright/automation/Calendar.h"
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/DateText.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/builtins/Arguments.h"
#include "cardwright/vbscript/builtins/DateLine.h"

namespace cardwright::vbscript {

namespace {

// Years of two digits are those from 1930 to 2029.
int FullYear(int year) noexcept {
  if (year < 0 || year > 99) return year;
  return year < 30 ? 2000 + year : 1900 + year;
}

// A date, or a text that reads as one. A number is neither.
CalendarTime ReadMoment(const Context& context, const Variant& value) {
  const Variant plain = DefaultValue(value);
  if (plain.Type() == VarType::Date) return ToCalendar({plain.Double()});
  if (plain.IsNull()) Raise(ErrorNumber::InvalidUseOfNull);
  if (!plain.IsString()) Raise(ErrorNumber::TypeMismatch);
  const auto date = ReadDateText(plain.StringView(), *context.locale);
  if (!date) Raise(ErrorNumber::TypeMismatch);
  return ToCalendar(*date);
}

}  // namespace

Variant DateSerialFunction(Context&, Args args) {
  const int year = ToInteger(args[0]);
  const int month = ToInteger(args[1]);
  const int day = ToInteger(args[2]);
  return DateOfDay(FullYear(year), month, day);
}

Variant TimeSerialFunction(Context&, Args args) {
  const int hour = ToInteger(args[0]);
  const int minute = ToInteger(args[1]);
  const int second = ToInteger(args[2]);
  // A negative sum stays a negative fraction, which as a date is a time of day 0: TimeSerial(0, -15, 0) shows
  // a quarter past midnight, and added to a date it still takes a quarter of an hour off.
  const double seconds = static_cast<double>(hour) * 3600 + static_cast<double>(minute) * 60 + second;
  return Date{seconds / static_cast<double>(kSecondsPerDay)};
}

Variant DateValueFunction(Context& context, Args args) {
  return Date{static_cast<double>(DayNumber(ReadMoment(context, args[0])))};
}

Variant TimeValueFunction(Context& context, Args args) {
  if (TakesNull(args, 0)) return Variant::Null();
  const CalendarTime time = ReadMoment(context, args[0]);
  return Join(0, (time.hour * 60 + time.minute) * 60 + time.second);
}

}  // namespace cardwright::vbscript
