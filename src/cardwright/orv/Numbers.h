#pragma once

#include <cstdint>
#include <string_view>

#include "cardwright/automation/Text.h"
#include "cardwright/orv/Values.h"

namespace cardwright::orv {

/// A whole number for an integer column. Refused: anything but digits with a sign and perhaps a fraction of
/// zeros, and what the column's size does not hold.
std::int64_t ParseInteger(std::u16string_view text, const Column& column);

/// A number for a column of reals, always read with a point. Refused: anything else, infinities, whole
/// numbers that the type cannot tell apart from their neighbours, and more digits than the column states.
double ParseReal(std::u16string_view text, const Column& column);

}  // namespace cardwright::orv
