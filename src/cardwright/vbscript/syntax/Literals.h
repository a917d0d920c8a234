#pragma once

#include <optional>
#include <string_view>

#include "cardwright/automation/Variant.h"

/// Values of literals, from the characters of their tokens.
namespace cardwright::vbscript {

/// A decimal number is an Integer, a Long or a Double, the first that holds it; with a point or an exponent
/// it is a Double. `&hFF`, `&o17` and `&17` are bits: an Integer up to 16 of them, else a Long, which `&`
/// behind them makes of any. None for a number beyond a Double's range or for more than 32 bits.
std::optional<Variant> NumberValue(std::u16string_view spelling);

/// What stands between the quotation marks, doubled ones halved.
Text StringValue(std::u16string_view spelling);

/// The date between number signs, read in the order of the United States whatever the locale. None where it
/// is no date.
std::optional<Variant> DateValueOf(std::u16string_view spelling);

}  // namespace cardwright::vbscript
