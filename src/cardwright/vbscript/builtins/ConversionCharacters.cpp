#include <array>
#include <limits>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/CodePage.h"
#include "cardwright/vbscript/builtins/Conversion.h"
#include "cardwright/vbscript/operators/Operand.h"

namespace cardwright::vbscript::conversion {

namespace {

constexpr std::int32_t kMaxByte = 255;

// The bits of a number. A negative one shows all the bits of its type: four hexadecimal digits of an Integer,
// eight of a Long, which every number with decimals counts as.
std::uint32_t BitsOf(const Operand& value) {
  if (value.Kind() == Side::Boolean || value.Kind() == Side::Integer) {
    return static_cast<std::uint16_t>(WholeValue(value));
  }
  return static_cast<std::uint32_t>(ToLong(value));
}

Variant Digits(const Variant& number, unsigned bitsPerDigit) {
  const Operand value(number);
  if (value.Kind() == Side::Null) return Variant::Null();
  constexpr std::size_t kMostDigits = 11;  // of 32 bits in octal
  std::array<char16_t, kMostDigits> digits;
  std::size_t first = digits.size();
  std::uint32_t bits = BitsOf(value);
  do {
    digits[--first] = u"0123456789ABCDEF"[bits & ((1U << bitsPerDigit) - 1)];
    bits >>= bitsPerDigit;
  } while (bits != 0);
  return std::u16string_view(&digits[first], digits.size() - first);
}

char16_t FirstOf(const Variant& argument) {
  const Operand value(argument);
  if (value.Kind() == Side::Unfit) Raise(ErrorNumber::TypeMismatch);
  const Text text = ToText(value);
  if (text.IsEmpty()) Raise(ErrorNumber::InvalidCall);
  return text[0];
}

std::int32_t CodeOf(const Variant& value, std::int32_t least, std::int32_t most) {
  const std::int32_t code = ToLong(value);
  if (code < least || code > most) Raise(ErrorNumber::InvalidCall);
  return code;
}

}  // namespace

Variant Hex(Context&, Args args) { return Digits(args[0], 4); }
Variant Oct(Context&, Args args) { return Digits(args[0], 3); }

Variant Asc(Context&, Args args) { return static_cast<std::int16_t>(ToCodePage(FirstOf(args[0]))); }

// Of the two bytes of a character, the one that stands first in memory.
Variant AscB(Context&, Args args) { return static_cast<std::int16_t>(FirstOf(args[0]) & kMaxByte); }

// An Integer, so characters of the upper half of the table are negative; ChrW takes them back.
Variant AscW(Context&, Args args) { return static_cast<std::int16_t>(FirstOf(args[0])); }

Variant Chr(Context& context, Args args) {
  return context.Character(FromCodePage(static_cast<std::uint8_t>(CodeOf(args[0], 0, kMaxByte))));
}

// A text has no half characters, so the byte stands as a character of its own.
Variant ChrB(Context& context, Args args) {
  return context.Character(static_cast<char16_t>(CodeOf(args[0], 0, kMaxByte)));
}

Variant ChrW(Context& context, Args args) {
  constexpr std::int32_t kLeast = std::numeric_limits<std::int16_t>::min();
  constexpr std::int32_t kMost = std::numeric_limits<char16_t>::max();
  return context.Character(static_cast<char16_t>(CodeOf(args[0], kLeast, kMost)));
}

}  // namespace cardwright::vbscript::conversion
