#pragma once

#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/Context.h"

/// The functions that count with dates, in the form of the library's table.
namespace cardwright::vbscript {

Variant DateAddFunction(Context& context, Args args);
Variant DateDiffFunction(Context& context, Args args);
Variant DatePartFunction(Context& context, Args args);

}  // namespace cardwright::vbscript
