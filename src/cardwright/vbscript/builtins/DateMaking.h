#pragma once

#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/Context.h"

/// The functions that make a date from numbers or from another value.
namespace cardwright::vbscript {

Variant DateSerialFunction(Context& context, Args args);
Variant TimeSerialFunction(Context& context, Args args);
Variant DateValueFunction(Context& context, Args args);
Variant TimeValueFunction(Context& context, Args args);

}  // namespace cardwright::vbscript
