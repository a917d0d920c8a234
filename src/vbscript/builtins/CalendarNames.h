#pragma once

#include "automation/Object.h"
#include "vbscript/Context.h"

namespace cardwright::vbscript {

Variant MonthNameFunction(Context& context, Args args);
Variant WeekdayNameFunction(Context& context, Args args);

}  // namespace cardwright::vbscript
