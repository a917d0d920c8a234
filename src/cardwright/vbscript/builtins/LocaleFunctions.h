#pragma once

#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/Context.h"

namespace cardwright::vbscript {

Variant GetLocaleFunction(Context& context, Args args);
/// Answers the number of the locale that was set before. Error 447 for a locale that is not known.
Variant SetLocaleFunction(Context& context, Args args);

}  // namespace cardwright::vbscript
