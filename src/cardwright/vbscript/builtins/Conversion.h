#pragma once

#include "cardwright/vbscript/builtins/Builtin.h"

/// The functions of the conversion family that stand in files of their own; ConversionFunctions lists them.
namespace cardwright::vbscript::conversion {

/// @name Whole parts and rounding. The type of the number stays; Boolean becomes Integer, text Double.
/// @{
Variant Int(Context& context, Args args);
Variant Fix(Context& context, Args args);
Variant Round(Context& context, Args args);
/// @}

/// @name Digits of other bases, and characters and their codes
/// @{
Variant Hex(Context& context, Args args);
Variant Oct(Context& context, Args args);
Variant Asc(Context& context, Args args);
Variant AscB(Context& context, Args args);
Variant AscW(Context& context, Args args);
Variant Chr(Context& context, Args args);
Variant ChrB(Context& context, Args args);
Variant ChrW(Context& context, Args args);
/// @}

/// @name Questions about a value
/// @{
Variant IsArray(Context& context, Args args);
Variant IsDate(Context& context, Args args);
Variant IsEmpty(Context& context, Args args);
Variant IsNull(Context& context, Args args);
Variant IsNumeric(Context& context, Args args);
Variant IsObject(Context& context, Args args);
Variant TypeName(Context& context, Args args);
Variant VarType(Context& context, Args args);
/// @}

}  // namespace cardwright::vbscript::conversion
