#pragma once

#include <cstdint>

#include "cardwright/automation/Calendar.h"

/// Dates on one even line of seconds. The days of a Date are no such line: before day 0 its fraction counts
/// forward from the day, against the sign.
namespace cardwright::vbscript {

inline constexpr std::int64_t kSecondsPerDay = 86400;

/// Quotient rounded down; `divisor` is positive.
constexpr std::int64_t FloorDivide(std::int64_t value, std::int64_t divisor) noexcept {
  return value / divisor - (value % divisor < 0 ? 1 : 0);
}

/// Days since 1899-12-30 of the date's day.
std::int64_t DayNumber(const CalendarTime& time) noexcept;
/// Seconds since 1899-12-30, 00:00.
std::int64_t SecondNumber(const CalendarTime& time) noexcept;
/// The date of such seconds; error 5 outside the years 100 to 9999.
Date DateOfSeconds(std::int64_t seconds);
/// The day that many days behind the first of a month, which may be any number of months from January of the
/// year. Error 5 outside the years 100 to 9999.
Date DateOfDay(std::int64_t year, std::int64_t month, std::int64_t day);
/// A date moved by months; a day that its new month does not have becomes the last one. Error 5 outside the
/// years 100 to 9999.
Date AddMonths(const CalendarTime& time, std::int64_t months);

}  // namespace cardwright::vbscript
