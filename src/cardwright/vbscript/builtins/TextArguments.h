#pragma once

#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"
#include "cardwright/automation/Text.h"
#include "cardwright/vbscript/builtins/Arguments.h"

/// How the functions on texts read their arguments. An argument that was left out where the function needs
/// one is no value of any type: error 13.
namespace cardwright::vbscript {

/// Slow half of HasText.
bool MakeText(Variant& argument);

/// Turns the argument into its text, in place; false for Null, which stays. Error 13 for an array or what was
/// left out, 91 and 438 for an object without a value.
inline bool HasText(Variant& argument) { return argument.IsString() || MakeText(argument); }

/// The text of the argument, which lives as long as the argument does; error 94 for Null.
inline std::u16string_view RequireText(Variant& argument) {
  if (!HasText(argument)) Raise(ErrorNumber::InvalidUseOfNull);
  return argument.StringView();
}

/// The argument as a whole number; error 94 for Null.
inline std::int32_t WholeNumber(const Variant& argument) {
  const VarType type = argument.Type();
  return type == VarType::Integer || type == VarType::Long ? argument.Long() : ToLong(argument);
}

/// Likewise of an argument that may be left out.
inline std::int32_t WholeNumberOr(Args args, std::size_t index, std::int32_t fallback) {
  const Variant* value = ArgumentAt(args, index);
  return value ? WholeNumber(*value) : fallback;
}

/// Likewise, of a number of characters or the like: error 5 below 0.
inline std::size_t CountOr(Args args, std::size_t index, std::int32_t fallback) {
  const std::int32_t count = WholeNumberOr(args, index, fallback);
  if (count < 0) Raise(ErrorNumber::InvalidCall);
  return static_cast<std::size_t>(count);
}

/// The same of a number that must be there.
inline std::size_t Count(const Variant& argument) {
  const std::int32_t count = WholeNumber(argument);
  if (count < 0) Raise(ErrorNumber::InvalidCall);
  return static_cast<std::size_t>(count);
}

/// A position counted from 1 as an offset from 0; error 5 below 1.
inline std::size_t Offset(std::int32_t position) {
  if (position < 1) Raise(ErrorNumber::InvalidCall);
  return static_cast<std::size_t>(position) - 1;
}

/// Writes the characters at `to` and answers where they end.
inline char16_t* Append(char16_t* to, std::u16string_view characters) noexcept {
  if (!characters.empty()) std::memcpy(to, characters.data(), characters.size() * sizeof(char16_t));
  return to + characters.size();
}

/// Count where all is meant.
inline constexpr std::int32_t kAll = std::numeric_limits<std::int32_t>::max();

}  // namespace cardwright::vbscript
