#pragma once

#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/Context.h"

namespace cardwright::vbscript {

Variant MonthNameFunction(Context& context, Args args);
Variant WeekdayNameFunction(Context& context, Args args);

}  // namespace cardwright::vbscript
