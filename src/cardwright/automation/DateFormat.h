// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Calendar.h"
#include "cardwright/automation/Locale.h"
#include "cardwright/automation/Text.h"

namespace cardwright {

/// @name Dates and times as a country writes them. Fractions of a second are not shown.
/// @{
Text FormatShortDate(const CalendarTime& time, const Locale& locale);  ///< "11/21/2026"
Text FormatLongDate(const CalendarTime& time, const Locale& locale);   ///< "Saturday, November 21, 2026"
Text FormatLongTime(const CalendarTime& time, const Locale& locale);   ///< "3:45:30 PM"
Text FormatShortTime(const CalendarTime& time);                        ///< "15:45", in every country
/// The day, the time of day, or both: a date without a time shows none, and day zero is a time alone. Error 6
/// outside the years 100 to 9999.
Text FormatDate(Date date, const Locale& locale);
/// @}

}  // namespace cardwright
