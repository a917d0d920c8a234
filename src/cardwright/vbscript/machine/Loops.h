// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Variant.h"

namespace cardwright::vbscript {

/// Start of For. `bounds` are the first value, the limit and the step. Converts them to numbers, sets the
/// variable, and returns whether the body is to run at all.
bool PrepareFor(Variant& variable, Variant* bounds);
/// The slow path of Next: returns whether the body is to run again. Error 92 where the loop was never
/// prepared.
bool AdvanceFor(Variant& variable, const Variant& limit, const Variant& step);

}  // namespace cardwright::vbscript
