#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "cardwright/automation/Object.h"

namespace cardwright::vbscript {

class Context;

/// One function of the language's own library. The machine has checked the count of arguments (450 outside),
/// and followed references: `args` hold plain values, each possibly Missing where the script left it out. A
/// function may take values out of `args`. Results go back by value; errors are raised.
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

/// @name The library, a family each
/// @{
std::span<const Builtin> ConversionFunctions();  ///< CStr, CInt, Hex, Int, Round, TypeName, IsArray…
std::span<const Builtin> MathFunctions();        ///< Abs, Sin, Sqr, Rnd, RGB…
std::span<const Builtin> TextFunctions();        ///< Len, Mid, InStr, Replace, StrComp, Escape…
std::span<const Builtin> ArrayFunctions();       ///< Array, UBound, Split, Join, Filter…
std::span<const Builtin> DateFunctions();        ///< Now, DateAdd, Weekday, MonthName…
std::span<const Builtin> FormatFunctions();      ///< FormatNumber, FormatDateTime…
std::span<const Builtin> HostFunctions();        ///< MsgBox, CreateObject, SetLocale, ScriptEngine…
std::span<const BuiltinConstant> Constants();    ///< vbCrLf, vbYesNo…
/// @}

/// Index of a function of the whole library, whatever the case of its name; null where there is none.
const Builtin* FindBuiltin(std::u16string_view name) noexcept;
/// Likewise a constant.
const BuiltinConstant* FindConstant(std::u16string_view name) noexcept;

}  // namespace cardwright::vbscript
