#include "cardwright/vbscript/builtins/CalendarNames.h"

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/builtins/Arguments.h"
#include "cardwright/vbscript/builtins/Weeks.h"

namespace cardwright::vbscript {

namespace {

// The argument as an index from 0; error 5 outside 1 to `count`.
std::size_t ReadIndex(const Variant& value, std::int32_t count) {
  const std::int32_t number = ToLong(value);
  if (number < 1 || number > count) Raise(ErrorNumber::InvalidCall);
  return static_cast<std::size_t>(number - 1);
}

bool IsAbbreviated(Args args) {
  const Variant* value = ArgumentAt(args, 1);
  return value && ToBoolean(*value);
}

}  // namespace

Variant MonthNameFunction(Context& context, Args args) {
  const std::size_t month = ReadIndex(args[0], 12);
  const Locale& locale = *context.locale;
  return (IsAbbreviated(args) ? locale.shortMonths : locale.months)[month];
}

Variant WeekdayNameFunction(Context& context, Args args) {
  const std::size_t position = ReadIndex(args[0], 7);
  const bool isAbbreviated = IsAbbreviated(args);
  const std::size_t day = (position + static_cast<std::size_t>(ReadFirstDay(context, args, 2))) % 7;
  const Locale& locale = *context.locale;
  return (isAbbreviated ? locale.shortWeekdays : locale.weekdays)[day];
}

}  // namespace cardwright::vbscript
