#pragma once

#include "cardwright/automation/Variant.h"

namespace cardwright::vbscript {

/// The unit that DateAdd, DateDiff and DatePart count in.
enum class Interval { Year, Quarter, Month, DayOfYear, Day, Weekday, Week, Hour, Minute, Second };

/// Interval of its letters, "yyyy" to "s" in any case. Error 5 for others, 94 for Null.
Interval ReadInterval(const Variant& value);

}  // namespace cardwright::vbscript
