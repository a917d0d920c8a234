// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "cardwright/automation/Object.h"

namespace cardwright::vbscript {

class Context;

/// One function of the language's own library. The machine has checked the number of arguments (error 450)
/// and dereferenced them: `args` are plain values, Missing where the script left one out. A function may move
/// values out of `args`.
struct Builtin {
  using Function = Variant (*)(Context& context, Args args);

  std::u16string_view name;
  Function call;
  std::uint8_t minArguments;
  std::uint8_t maxArguments;
};
inline constexpr std::uint8_t kAnyCount = 255;

/// One named constant of the language.
struct BuiltinConstant {
  std::u16string_view name;
  Variant (*value)();
};

/// @name The families of the library. Each is a file of its name: the functions, and at its end their table.
/// @{
std::span<const Builtin> ArrayFunctions();         ///< Array, UBound, Split, Join, Filter…
std::span<const Builtin> ConversionFunctions();    ///< CStr, CInt, Hex, Asc, Chr…
std::span<const Builtin> DateFunctions();          ///< Now, Year, Weekday, DateSerial, MonthName…
std::span<const Builtin> DateIntervalFunctions();  ///< DateAdd, DateDiff, DatePart
std::span<const Builtin> EscapeFunctions();        ///< Escape, Unescape
std::span<const Builtin> FormatFunctions();        ///< FormatNumber, FormatDateTime…
std::span<const Builtin> HostFunctions();          ///< MsgBox, CreateObject, SetLocale, ScriptEngine…
std::span<const Builtin> MathFunctions();          ///< Abs, Sin, Round, Rnd, RGB…
std::span<const Builtin> StringFunctions();        ///< Len, Mid, Trim, UCase, Space…
std::span<const Builtin> StringSearchFunctions();  ///< InStr, StrComp, Replace…
std::span<const Builtin> TypeFunctions();          ///< IsNumeric, TypeName, VarType…
/// @}

/// All families.
std::span<const std::span<const Builtin>> BuiltinFamilies();
/// The function of a name in any case; null where there is none.
const Builtin* FindBuiltin(std::u16string_view name) noexcept;

std::span<const BuiltinConstant> Constants();  ///< vbCrLf, vbYesNo…
/// Likewise a constant.
const BuiltinConstant* FindConstant(std::u16string_view name) noexcept;

}  // namespace cardwright::vbscript
