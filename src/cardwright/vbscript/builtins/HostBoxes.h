#pragma once

#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/Context.h"

/// The boxes that a script can put up. Where it may show nothing, the answer is the one of a box that never
/// was: 0 and Empty.
namespace cardwright::vbscript {

Variant MsgBoxFunction(Context& context, Args args);
Variant InputBoxFunction(Context& context, Args args);

}  // namespace cardwright::vbscript
