#pragma once

#include "cardwright/automation/Variant.h"

namespace cardwright::vbscript {

/// Start of For: `bounds` are first value, limit and step. Sets the variable, makes limit and step numbers,
/// and tells whether the body is to run at all.
bool PrepareFor(Variant& variable, Variant* bounds);
/// The way of Next that the interpreter has no quick path for. Error 92 where the loop was never prepared.
bool AdvanceFor(Variant& variable, const Variant& limit, const Variant& step);

}  // namespace cardwright::vbscript
