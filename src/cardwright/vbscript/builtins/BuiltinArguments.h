// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"
#include "cardwright/automation/Text.h"

/// How the functions of the library read their arguments. An argument that a script left out although the
/// function needs it, as in `Left(, 2)`, is error 13.
namespace cardwright::vbscript {

/// The argument at an index, or null where it was left out.
inline const Variant* ArgumentAt(Args args, std::size_t index) noexcept {
  return index < args.size() && !args[index].IsMissing() ? &args[index] : nullptr;
}

/// Whether the argument is Null, or an object whose default value is. Such an object is replaced by its
/// value.
inline bool IsNullArgument(Args args, std::size_t index) {
  if (args[index].IsObject()) args[index] = DefaultValue(args[index]);
  return args[index].IsNull();
}

/// @name Strings
/// @{
/// Slow half of HasText.
bool MakeText(Variant& argument);
/// Replaces the argument by its text; false for Null, which stays. Error 13 for an array, 91 and 438 for an
/// object without a value.
inline bool HasText(Variant& argument) { return argument.IsString() || MakeText(argument); }
/// The text of the argument, valid as long as the argument; error 94 for Null.
inline std::u16string_view RequireText(Variant& argument) {
  if (!HasText(argument)) Raise(ErrorNumber::InvalidUseOfNull);
  return argument.StringView();
}
/// The argument as a text, or `fallback` where it was left out.
inline Text TextOr(Args args, std::size_t index, const Text& fallback) {
  const Variant* value = ArgumentAt(args, index);
  return value ? ToText(*value) : fallback;
}
/// @}

/// @name Whole numbers; error 94 for Null
/// @{
inline std::int32_t LongOf(const Variant& argument) {
  const VarType type = argument.Type();
  return type == VarType::Integer || type == VarType::Long ? argument.Long() : ToLong(argument);
}
/// `fallback` where the argument was left out.
inline std::int32_t LongOr(Args args, std::size_t index, std::int32_t fallback) {
  const Variant* value = ArgumentAt(args, index);
  return value ? LongOf(*value) : fallback;
}
/// A number of characters or the like; error 5 below 0.
inline std::size_t CheckedCount(std::int32_t count) {
  if (count < 0) Raise(ErrorNumber::InvalidCall);
  return static_cast<std::size_t>(count);
}
inline std::size_t CountOf(const Variant& argument) { return CheckedCount(LongOf(argument)); }
/// A position counted from 1 as an offset from 0; error 5 below 1.
inline std::size_t Offset(std::int32_t position) {
  if (position < 1) Raise(ErrorNumber::InvalidCall);
  return static_cast<std::size_t>(position) - 1;
}
/// The count that takes all that there is.
inline constexpr std::int32_t kAll = std::numeric_limits<std::int32_t>::max();
/// @}

/// Writes the characters at `to` and returns where they end.
inline char16_t* Append(char16_t* to, std::u16string_view characters) noexcept {
  if (!characters.empty()) std::memcpy(to, characters.data(), characters.size() * sizeof(char16_t));
  return to + characters.size();
}

}  // namespace cardwright::vbscript
