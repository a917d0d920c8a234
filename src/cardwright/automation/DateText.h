// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "cardwright/automation/Locale.h"
#include "cardwright/automation/Variant.h"

namespace cardwright {

/// Reads a date, a time of day or both: numbers in the locale's order, or in another order where that gives
/// no date; month names of the locale or in English; years of two digits are 1930 to 2029, and without a year
/// it is this year. Times have colons, or points ("15.30") where those give no date. None where the text is
/// no date.
std::optional<Date> ReadDateText(std::u16string_view text, const Locale& locale);

}  // namespace cardwright
