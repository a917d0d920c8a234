// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "cardwright/automation/Text.h"
#include "cardwright/orv/FieldValues.h"

namespace cardwright::orv {

/// Parses a whole number for an integer column: digits with an optional sign and an optional fraction of
/// zeros. Fails for anything else, and for a number that the column cannot hold.
std::int64_t ParseInteger(std::u16string_view text, const Column& column);

/// Parses a number for a column of reals, with a decimal point in any locale. Fails for anything else, for
/// infinities, for whole numbers that a double cannot tell from their neighbours, and for more digits than
/// the column declares.
double ParseReal(std::u16string_view text, const Column& column);

}  // namespace cardwright::orv
