#pragma once

#include "cardwright/automation/Object.h"

namespace cardwright::vbscript {
class Context;
}

/// The functions on arrays, each as the table in ArrayFunctions.cpp calls it.
namespace cardwright::vbscript::builtin {

/// The values in a new array from 0; one left out stays what it is, an error value.
Variant Array(Context& context, Args args);

/// Bounds of a dimension, counted from 1. Error 13 for what is no array, 9 for a dimension that it does not
/// have; an array that was not dimensioned yet has none.
/// @{
Variant LBound(Context& context, Args args);
Variant UBound(Context& context, Args args);
/// @}

/// @name Arrays of texts. Error 94 for Null, 13 where an array of one dimension is wanted and something else
/// given, 9 for one that was not dimensioned yet.
/// @{
Variant Split(Context& context, Args args);
Variant Join(Context& context, Args args);
Variant Filter(Context& context, Args args);
/// @}

}  // namespace cardwright::vbscript::builtin
