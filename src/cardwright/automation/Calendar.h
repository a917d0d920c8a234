// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "cardwright/automation/Variant.h"

namespace cardwright {

/// A date's parts by the Gregorian calendar and a clock of whole seconds.
struct CalendarTime {
  int year = 1899;
  int month = 12;  ///< 1 to 12
  int day = 30;    ///< 1 to 31
  int hour = 0;
  int minute = 0;
  int second = 0;
  int weekday = 0;  ///< 0 for Sunday
};

/// True for a number of days that the platform's dates can have: years 100 to 9999.
bool IsDateRange(double days) noexcept;
/// Parts of a date, rounded to the second; error 6 outside the years 100 to 9999.
CalendarTime ToCalendar(Date date);
/// Whole days of a date; none where the calendar has no such day or the year is outside 100 to 9999.
std::optional<double> DaysOf(int year, int month, int day) noexcept;
/// A date of whole days and a time of day. Before day 0 the time still counts forward, so it is taken off.
Date Join(double days, int secondOfDay) noexcept;
/// This year by the machine's clock and time zone.
int CurrentYear() noexcept;

}  // namespace cardwright
