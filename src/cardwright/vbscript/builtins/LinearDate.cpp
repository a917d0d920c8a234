// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/builtins/LinearDate.h"

#include <chrono>
#include <optional>

#include "cardwright/automation/Errors.h"

namespace cardwright::vbscript {

namespace {

namespace chrono = std::chrono;

constexpr chrono::sys_days kDayZero{chrono::year{1899} / 12 / 30};
constexpr int kMonthsPerYear = 12;
// From a later year no number of days that a script can give leads back to the year 9999.
constexpr std::int64_t kLastYear = 10100;

struct MonthOfYear {
  int year, month;
};

// The month that is `months` after January of year 0. Error 5 where its year is far off.
MonthOfYear MonthOf(std::int64_t months) {
  const std::int64_t year = FloorDivide(months, kMonthsPerYear);
  if (year < 0 || year > kLastYear) Raise(ErrorNumber::InvalidCall);
  return {static_cast<int>(year), static_cast<int>(months - year * kMonthsPerYear) + 1};
}

int SecondOfDay(const CalendarTime& time) noexcept {
  return (time.hour * 60 + time.minute) * 60 + time.second;
}

}  // namespace

std::int64_t DayNumber(const CalendarTime& time) noexcept {
  return static_cast<std::int64_t>(*DaysOf(time.year, time.month, time.day));
}

std::int64_t SecondNumber(const CalendarTime& time) noexcept {
  return DayNumber(time) * kSecondsPerDay + SecondOfDay(time);
}

Date DateOfSeconds(std::int64_t seconds) {
  const std::int64_t day = FloorDivide(seconds, kSecondsPerDay);
  if (!IsDateRange(static_cast<double>(day))) Raise(ErrorNumber::InvalidCall);
  return Join(static_cast<double>(day), static_cast<int>(seconds - day * kSecondsPerDay));
}

Date DateOfDay(std::int64_t year, std::int64_t month, std::int64_t day) {
  // The days may lead into the range of dates from a month outside.
  const MonthOfYear target = MonthOf(year * kMonthsPerYear + month - 1);
  const chrono::sys_days first{chrono::year{target.year} / target.month / 1};
  return DateOfSeconds(((first - kDayZero).count() + day - 1) * kSecondsPerDay);
}

Date AddMonths(const CalendarTime& time, std::int64_t months) {
  const MonthOfYear target = MonthOf(std::int64_t{time.year} * kMonthsPerYear + time.month - 1 + months);
  std::optional<double> days;
  for (int day = time.day; !days; --day) {
    if (day == 0) Raise(ErrorNumber::InvalidCall);
    days = DaysOf(target.year, target.month, day);
  }
  return Join(*days, SecondOfDay(time));
}

}  // namespace cardwright::vbscript
