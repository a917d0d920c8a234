// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "cardwright/automation/Calendar.h"

/// Dates as a number of seconds, which arithmetic needs. The number in a Date is not linear: before day 0 its
/// fraction counts forward from the day, against the sign.
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
/// The day `day` of the month `month` of a year; both count from 1 and may lie outside their range, as in
/// DateSerial. Error 5 outside the years 100 to 9999.
Date DateOfDay(std::int64_t year, std::int64_t month, std::int64_t day);
/// A date moved by months; a day that the new month lacks becomes its last one. Error 5 outside the
/// years 100 to 9999.
Date AddMonths(const CalendarTime& time, std::int64_t months);

}  // namespace cardwright::vbscript
