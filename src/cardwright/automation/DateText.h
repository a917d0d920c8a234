#pragma once

#include <optional>
#include <string_view>

#include "cardwright/automation/Locale.h"
#include "cardwright/automation/Variant.h"

namespace cardwright {

/// Reads a date, a time of day or both from a text: numbers in the locale's order, or in another one where
/// that order makes no date; names of months in the locale's language or in English; years of two digits mean
/// 1930 to 2029 and a missing one this year. Times have colons, or points ("15.30") where those make no date.
/// None where the text is no date.
std::optional<Date> ReadDateText(std::u16string_view text, const Locale& locale);

}  // namespace cardwright
