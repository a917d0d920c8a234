// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "cardwright/automation/Variant.h"

/// Values of literals, from the characters of their tokens.
namespace cardwright::vbscript {

/// A decimal number is an Integer, a Long or a Double, whichever is the first that can hold it; with a point
/// or an exponent it is a Double. `&hFF`, `&o17` and `&17` are bits: an Integer up to 16 bits, otherwise or
/// with a final `&` a Long. None for a number beyond the range of a Double and for more than 32 bits.
std::optional<Variant> NumberValue(std::u16string_view spelling);

/// The characters between the quotation marks, with doubled marks made single.
Text StringValue(std::u16string_view spelling);

/// The date between number signs, read in the order of the United States whatever the locale. None where it
/// is no date.
std::optional<Variant> DateValueOf(std::u16string_view spelling);

}  // namespace cardwright::vbscript
