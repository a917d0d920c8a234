#include "cardwright/automation/Calendar.h"
#include "cardwright/automation/Conversions.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/Arguments.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/builtins/CalendarNames.h"
#include "cardwright/vbscript/builtins/Clock.h"
#include "cardwright/vbscript/builtins/DateArithmetic.h"
#include "cardwright/vbscript/builtins/DateMaking.h"
#include "cardwright/vbscript/builtins/Weeks.h"

namespace cardwright::vbscript {

namespace {

// One number out of a date; Null stays Null.
template <int CalendarTime::*Part>
Variant PartFunction(Context&, Args args) {
  if (TakesNull(args, 0)) return Variant::Null();
  return static_cast<std::int16_t>(ToCalendar(ToDate(args[0])).*Part);
}

Variant WeekdayFunction(Context& context, Args args) {
  const int firstDay = ReadFirstDay(context, args, 1);
  if (TakesNull(args, 0)) return Variant::Null();
  return static_cast<std::int16_t>(WeekdayNumber(ToCalendar(ToDate(args[0])).weekday, firstDay));
}

constexpr Builtin kDateFunctions[] = {
    {u"Date", DateFunction, 0, 0},
    {u"DateAdd", DateAddFunction, 3, 3},
    {u"DateDiff", DateDiffFunction, 3, 5},
    {u"DatePart", DatePartFunction, 2, 4},
    {u"DateSerial", DateSerialFunction, 3, 3},
    {u"DateValue", DateValueFunction, 1, 1},
    {u"Day", PartFunction<&CalendarTime::day>, 1, 1},
    {u"Hour", PartFunction<&CalendarTime::hour>, 1, 1},
    {u"Minute", PartFunction<&CalendarTime::minute>, 1, 1},
    {u"Month", PartFunction<&CalendarTime::month>, 1, 1},
    {u"MonthName", MonthNameFunction, 1, 2},
    {u"Now", NowFunction, 0, 0},
    {u"Second", PartFunction<&CalendarTime::second>, 1, 1},
    {u"Time", TimeFunction, 0, 0},
    {u"Timer", TimerFunction, 0, 0},
    {u"TimeSerial", TimeSerialFunction, 3, 3},
    {u"TimeValue", TimeValueFunction, 1, 1},
    {u"Weekday", WeekdayFunction, 1, 2},
    {u"WeekdayName", WeekdayNameFunction, 1, 3},
    {u"Year", PartFunction<&CalendarTime::year>, 1, 1},
};

}  // namespace

std::span<const Builtin> DateFunctions() { return kDateFunctions; }

}  // namespace cardwright::vbscript
