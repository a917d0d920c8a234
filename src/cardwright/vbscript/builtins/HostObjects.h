#pragma once

#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/Context.h"

/// The functions that get an object from the program around the engine.
namespace cardwright::vbscript {

Variant CreateObjectFunction(Context& context, Args args);
Variant GetObjectFunction(Context& context, Args args);
Variant LoadPictureFunction(Context& context, Args args);

}  // namespace cardwright::vbscript
