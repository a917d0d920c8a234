// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "cardwright/automation/Calendar.h"
#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/Context.h"

/// Where weeks begin and which one is a year's first.
namespace cardwright::vbscript {

enum class FirstWeek : std::uint8_t { January1 = 1, FourDays = 2, Full = 3 };

/// The argument `firstdayofweek` as a day from 0 for Sunday: 1 for Sunday to 7 for Saturday, 0 for the
/// locale's, and Sunday where it was left out. Error 5 for other numbers.
int ReadFirstDay(const Context& context, Args args, std::size_t index);
/// The argument `firstweekofyear`: 0 for the locale's, and the week of January 1 where it was left out. Error
/// 5 for other numbers.
FirstWeek ReadFirstWeek(const Context& context, Args args, std::size_t index);

/// 1 to 7, counted from the first day of the week.
int WeekdayNumber(int weekday, int firstDay) noexcept;
/// Number of the week of a day, `day` being its days since 1899-12-30.
int WeekOfYear(const CalendarTime& time, std::int64_t day, int firstDay, FirstWeek firstWeek) noexcept;
/// Weeks that begin after the one day and up to the other.
std::int64_t WeekBoundaries(std::int64_t from, std::int64_t to, int firstDay) noexcept;
/// Day of the year, from 1.
int DayOfYear(const CalendarTime& time) noexcept;

}  // namespace cardwright::vbscript
