// SPDX-License-Identifier: MIT
#include <js/CallAndConstruct.h>
#include <js/Date.h>
#include <js/PropertyAndElement.h>
#include <js/ValueArray.h>
#include <jsapi.h>
#include <jsfriendapi.h>

#include <cmath>

#include "cardwright/automation/Calendar.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/jscript/errors/ErrorTexts.h"
#include "cardwright/jscript/spidermonkey/ScriptSession.h"
#include "cardwright/jscript/spidermonkey/ValueConversion.h"

namespace cardwright::jscript {
namespace {

constexpr double kDayLength = 86'400'000;  // milliseconds
constexpr double kDaysToEpoch = 25569;     // from 1899-12-30 to 1970-01-01

// The host's days for milliseconds of local time since 1970.
double HostDays(double local) noexcept {
  const double day = std::floor(local / kDayLength);
  const double part = (local - day * kDayLength) / kDayLength;
  // Before day 0 the host's days are negative, but their fraction still counts forward.
  const double whole = day + kDaysToEpoch;
  return whole < 0 ? whole - part : whole + part;
}

bool LocalTime(ScriptSession& session, JS::HandleObject object, double& local) {
  JSContext* cx = session.Context();
  double instant = 0;
  if (!js::DateGetMsecSinceEpoch(cx, object, &instant)) return false;
  JS::RootedValue offset(cx);
  JS::RootedValue function(cx, JS::ObjectValue(*session.TimezoneOffset()));
  if (!JS_CallFunctionValue(cx, object, function, JS::HandleValueArray::empty(), &offset)) return false;
  local = instant - (offset.isNumber() ? offset.toNumber() : 0) * 60'000;
  return true;
}

bool WriteHiddenNumber(ScriptSession& session, JS::HandleObject object, Runtime::HiddenProperty property,
                       double number) {
  JSContext* cx = session.Context();
  JS::RootedId key(cx, session.GetRuntime().Key(property));
  JS::RootedValue value(cx, JS::NumberValue(number));
  return JS_DefinePropertyById(cx, object, key, value, 0);
}

// The host's days from which the date was made, unless the script has changed it since.
bool ReadHostDays(ScriptSession& session, JS::HandleObject object, double& days, bool& isUnchanged) {
  JSContext* cx = session.Context();
  JS::RootedId instantKey(cx, session.GetRuntime().Key(Runtime::HiddenProperty::Instant));
  JS::RootedId daysKey(cx, session.GetRuntime().Key(Runtime::HiddenProperty::Days));
  JS::RootedValue instant(cx), stored(cx);
  double now = 0;
  if (!JS_GetPropertyById(cx, object, instantKey, &instant) ||
      !JS_GetPropertyById(cx, object, daysKey, &stored) || !js::DateGetMsecSinceEpoch(cx, object, &now))
    return false;
  isUnchanged = instant.isNumber() && stored.isNumber() && instant.toNumber() == now;
  if (isUnchanged) days = stored.toNumber();
  return true;
}

}  // namespace

bool DateToScript(ScriptSession& session, Date date, JS::MutableHandleValue result) {
  JSContext* cx = session.Context();
  const double whole = std::trunc(date.days);
  const double inDay = std::round(std::abs(date.days - whole) * kDayLength);
  const CalendarTime day = ToCalendar(Date{whole});
  const int second = static_cast<int>(inDay / 1000);
  JS::RootedObject object(cx, JS::NewDateObject(cx, day.year, day.month - 1, day.day, second / 3600,
                                                second / 60 % 60, second % 60));
  double instant = 0;
  if (!object || !js::DateGetMsecSinceEpoch(cx, object, &instant)) return false;
  instant += inDay - second * 1000.0;
  object = JS::NewDateObject(cx, JS::TimeClip(instant));
  double local = 0;
  if (!object || !LocalTime(session, object, local)) return false;
  // A Date loses fractions of a millisecond and the hours that daylight saving skips, so the host's days are
  // kept with it.
  if (HostDays(local) != date.days &&
      (!WriteHiddenNumber(session, object, Runtime::HiddenProperty::Days, date.days) ||
       !WriteHiddenNumber(session, object, Runtime::HiddenProperty::Instant, instant)))
    return false;
  result.setObject(*object);
  return true;
}

bool DateFromScript(ScriptSession& session, JS::HandleObject object, Variant& result) {
  double days = 0;
  bool isUnchanged = false;
  if (!ReadHostDays(session, object, days, isUnchanged)) return false;
  if (!isUnchanged) {
    double local = 0;
    if (!LocalTime(session, object, local)) return false;
    days = HostDays(local);
    if (!std::isfinite(local) || !IsDateRange(days)) Raise(kInvalidCall, ErrorText(kInvalidCall));
  }
  result = Date{days};
  return true;
}

}  // namespace cardwright::jscript
