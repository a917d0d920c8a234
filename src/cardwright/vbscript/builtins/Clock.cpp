#include "cardwright/vbscript/builtins/Clock.h"

#include <chrono>
#include <ctime>

#include "cardwright/automation/Calendar.h"

namespace cardwright::vbscript {

namespace {

struct Reading {
  double days;
  int secondOfDay;
  double fraction;  // of the second
};

Reading ReadClock() {
  const auto now = std::chrono::system_clock::now();
  const auto whole = std::chrono::floor<std::chrono::seconds>(now);
  const std::time_t seconds = std::chrono::system_clock::to_time_t(whole);
  std::tm parts{};
  localtime_r(&seconds, &parts);
  const int second = parts.tm_sec > 59 ? 59 : parts.tm_sec;  // a leap second has no place in a Date
  return {DaysOf(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday).value_or(0),
          (parts.tm_hour * 60 + parts.tm_min) * 60 + second,
          std::chrono::duration<double>(now - whole).count()};
}

}  // namespace

Variant DateFunction(Context&, Args) { return Date{ReadClock().days}; }

Variant TimeFunction(Context&, Args) { return Join(0, ReadClock().secondOfDay); }

Variant NowFunction(Context&, Args) {
  const Reading now = ReadClock();
  return Join(now.days, now.secondOfDay);
}

Variant TimerFunction(Context&, Args) {
  const Reading now = ReadClock();
  return static_cast<float>(now.secondOfDay + now.fraction);
}

}  // namespace cardwright::vbscript
