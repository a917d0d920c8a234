#pragma once

#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/Context.h"

/// The functions that read the machine's clock, in the process's time zone.
namespace cardwright::vbscript {

Variant DateFunction(Context& context, Args args);
Variant TimeFunction(Context& context, Args args);
Variant NowFunction(Context& context, Args args);
/// Seconds since midnight with their fraction, a Single.
Variant TimerFunction(Context& context, Args args);

}  // namespace cardwright::vbscript
