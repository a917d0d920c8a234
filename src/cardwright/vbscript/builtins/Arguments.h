#pragma once

#include <cstdint>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"

/// What the functions of the library do with arguments that a script may leave out.
namespace cardwright::vbscript {

/// The argument at a place, or null where the script left it out.
inline const Variant* ArgumentAt(Args args, std::size_t index) noexcept {
  return index < args.size() && !args[index].IsMissing() ? &args[index] : nullptr;
}

/// The argument as a Long, or `fallback` where it was left out.
inline std::int32_t LongOr(Args args, std::size_t index, std::int32_t fallback) {
  const Variant* value = ArgumentAt(args, index);
  return value ? ToLong(*value) : fallback;
}

/// The argument as a text, or `fallback` where it was left out.
inline Text TextOr(Args args, std::size_t index, const Text& fallback) {
  const Variant* value = ArgumentAt(args, index);
  return value ? ToText(*value) : fallback;
}

/// The argument as a text; error 13 where it was left out.
inline Text RequiredText(Args args, std::size_t index) {
  const Variant* value = ArgumentAt(args, index);
  if (!value) Raise(ErrorNumber::TypeMismatch);
  return ToText(*value);
}

/// Whether the argument is Null, or an object whose default value is; such an object gives way to its value.
inline bool TakesNull(Args args, std::size_t index) {
  if (args[index].IsObject()) args[index] = DefaultValue(args[index]);
  return args[index].IsNull();
}

}  // namespace cardwright::vbscript
