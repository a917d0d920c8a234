// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "cardwright/automation/DecimalDigits.h"
#include "cardwright/automation/Locale.h"

namespace cardwright {

/// A text read as a number: its digits, or for "&H" and "&O" forms its bits.
struct NumericText {
  DecimalDigits digits;
  std::optional<std::uint64_t> bits;
};

/// Reads a number as the platform's conversions do: blanks around it, one sign before or after it or
/// parentheses for a negative number, the currency symbol, group separators anywhere after the first digit,
/// an exponent with E or D. None for any other text.
std::optional<NumericText> ReadNumericText(std::u16string_view text, const Locale& locale);

}  // namespace cardwright
