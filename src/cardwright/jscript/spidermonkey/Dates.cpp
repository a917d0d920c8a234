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
#include "cardwright/jscript/spidermonkey/Session.h"
#include "cardwright/jscript/spidermonkey/Values.h"

namespace cardwright::jscript {
namespace {

constexpr double kDayLength = 86'400'000;  // milliseconds
constexpr double kDaysToEpoch = 25569;     // from 1899-12-30 to 1970-01-01

// Milliseconds of local time from 1970 on, as days of the host.
double DaysOfLocal(double local) noexcept {
  const double day = std::floor(local / kDayLength);
  const double part = (local - day * kDayLength) / kDayLength;
  // Before day 0 the time still counts forward.
  const double whole = day + kDaysToEpoch;
  return whole < 0 ? whole - part : whole + part;
}

bool LocalOf(Session& session, JS::HandleObject object, double& local) {
  JSContext* cx = session.Context();
  double instant = 0;
  if (!js::DateGetMsecSinceEpoch(cx, object, &instant)) return false;
  JS::RootedValue offset(cx);
  JS::RootedValue function(cx, JS::ObjectValue(*session.TimezoneOffset()));
  if (!JS_CallFunctionValue(cx, object, function, JS::HandleValueArray::empty(), &offset)) return false;
  local = instant - (offset.isNumber() ? offset.toNumber() : 0) * 60'000;
  return true;
}

bool Note(Session& session, JS::HandleObject object, Runtime::Note note, double number) {
  JSContext* cx = session.Context();
  JS::RootedId key(cx, session.GetRuntime().Key(note));
  JS::RootedValue value(cx, JS::NumberValue(number));
  return JS_DefinePropertyById(cx, object, key, value, 0);
}

// The days that the host gave, where the date is still the one made of them.
bool NotedDays(Session& session, JS::HandleObject object, double& days, bool& isNoted) {
  JSContext* cx = session.Context();
  JS::RootedId instantKey(cx, session.GetRuntime().Key(Runtime::Note::Instant));
  JS::RootedId daysKey(cx, session.GetRuntime().Key(Runtime::Note::Days));
  JS::RootedValue instant(cx), noted(cx);
  double now = 0;
  if (!JS_GetPropertyById(cx, object, instantKey, &instant) ||
      !JS_GetPropertyById(cx, object, daysKey, &noted) || !js::DateGetMsecSinceEpoch(cx, object, &now))
    return false;
  isNoted = instant.isNumber() && noted.isNumber() && instant.toNumber() == now;
  if (isNoted) days = noted.toNumber();
  return true;
}

}  // namespace

bool DateToScript(Session& session, Date date, JS::MutableHandleValue result) {
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
  if (!object || !LocalOf(session, object, local)) return false;
  // Parts of a millisecond, and hours that the clock skips, are not in the object.
  if (DaysOfLocal(local) != date.days && (!Note(session, object, Runtime::Note::Days, date.days) ||
                                          !Note(session, object, Runtime::Note::Instant, instant)))
    return false;
  result.setObject(*object);
  return true;
}

bool DateFromScript(Session& session, JS::HandleObject object, Variant& result) {
  double days = 0;
  bool isNoted = false;
  if (!NotedDays(session, object, days, isNoted)) return false;
  if (!isNoted) {
    double local = 0;
    if (!LocalOf(session, object, local)) return false;
    days = DaysOfLocal(local);
    if (!std::isfinite(local) || !IsDateRange(days)) Raise(kInvalidCall, ErrorText(kInvalidCall));
  }
  result = Date{days};
  return true;
}

}  // namespace cardwright::jscript
