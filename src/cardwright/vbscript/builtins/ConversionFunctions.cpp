// SPDX-License-Identifier: MIT
#include <array>
#include <limits>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/AnsiCharacters.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/operators/Operand.h"

// Values of one type made from another, digits of other bases, and characters and their codes.
namespace cardwright::vbscript {

namespace {

// CBool(expression) and its like: error 94 for Null, 13 for what is no such value, 6 for what is too large.
template <auto Convert>
Variant ConvertFunction(Context&, Args args) {
  const Operand value(args[0]);
  return Convert(value);
}

// CStr(expression)
Variant CStrFunction(Context&, Args args) {
  const Operand value(args[0]);
  if (value.Kind() == OperandType::Unsupported) Raise(ErrorNumber::TypeMismatch);
  return ToText(value);
}

// A negative number shows all bits of its type: 16 of an Integer, 32 of a Long, as which numbers with
// decimals count.
std::uint32_t BitPattern(const Operand& value) {
  if (value.Kind() == OperandType::Boolean || value.Kind() == OperandType::Integer) {
    return static_cast<std::uint16_t>(WholeValue(value));
  }
  return static_cast<std::uint32_t>(ToLong(value));
}

Variant DigitsOf(const Variant& number, unsigned bitsPerDigit) {
  const Operand value(number);
  if (value.Kind() == OperandType::Null) return Variant::Null();
  constexpr std::size_t kMostDigits = 11;  // of 32 bits in octal
  std::array<char16_t, kMostDigits> digits;
  std::size_t first = digits.size();
  std::uint32_t bits = BitPattern(value);
  do {
    digits[--first] = u"0123456789ABCDEF"[bits & ((1U << bitsPerDigit) - 1)];
    bits >>= bitsPerDigit;
  } while (bits != 0);
  return std::u16string_view(&digits[first], digits.size() - first);
}

// Hex(number): Null gives Null.
Variant HexFunction(Context&, Args args) { return DigitsOf(args[0], 4); }

// Oct(number): likewise.
Variant OctFunction(Context&, Args args) { return DigitsOf(args[0], 3); }

constexpr std::int32_t kMaxByte = 255;

char16_t FirstCharacter(const Variant& argument) {
  const Operand value(argument);
  if (value.Kind() == OperandType::Unsupported) Raise(ErrorNumber::TypeMismatch);
  const Text text = ToText(value);
  if (text.IsEmpty()) Raise(ErrorNumber::InvalidCall);
  return text[0];
}

std::int32_t CharacterCode(const Variant& value, std::int32_t least, std::int32_t most) {
  const std::int32_t code = ToLong(value);
  if (code < least || code > most) Raise(ErrorNumber::InvalidCall);
  return code;
}

// Asc(string): the code of its first character in the ANSI code page; error 5 for an empty string.
Variant AscFunction(Context&, Args args) {
  return static_cast<std::int16_t>(ToAnsi(FirstCharacter(args[0])));
}

// AscB(string): the low byte of its first character.
Variant AscBFunction(Context&, Args args) {
  return static_cast<std::int16_t>(FirstCharacter(args[0]) & kMaxByte);
}

// AscW(string): the UTF-16 unit of its first character. It is an Integer, so units from &H8000 on are
// negative.
Variant AscWFunction(Context&, Args args) { return static_cast<std::int16_t>(FirstCharacter(args[0])); }

// Chr(code): 0 to 255, in the ANSI code page.
Variant ChrFunction(Context& context, Args args) {
  return context.Character(FromAnsi(static_cast<std::uint8_t>(CharacterCode(args[0], 0, kMaxByte))));
}

// ChrB(code): a string has no half characters, so the byte becomes a whole one.
Variant ChrBFunction(Context& context, Args args) {
  return context.Character(static_cast<char16_t>(CharacterCode(args[0], 0, kMaxByte)));
}

// ChrW(code): takes what AscW gives, and the unsigned number too.
Variant ChrWFunction(Context& context, Args args) {
  constexpr std::int32_t kLeast = std::numeric_limits<std::int16_t>::min();
  constexpr std::int32_t kMost = std::numeric_limits<char16_t>::max();
  return context.Character(static_cast<char16_t>(CharacterCode(args[0], kLeast, kMost)));
}

constexpr Builtin kConversionFunctions[] = {
    {u"Asc", AscFunction, 1, 1},
    {u"AscB", AscBFunction, 1, 1},
    {u"AscW", AscWFunction, 1, 1},
    {u"CBool", ConvertFunction<ToBoolean>, 1, 1},
    {u"CByte", ConvertFunction<ToByte>, 1, 1},
    {u"CCur", ConvertFunction<ToCurrency>, 1, 1},
    {u"CDate", ConvertFunction<ToDate>, 1, 1},
    {u"CDbl", ConvertFunction<ToDouble>, 1, 1},
    {u"Chr", ChrFunction, 1, 1},
    {u"ChrB", ChrBFunction, 1, 1},
    {u"ChrW", ChrWFunction, 1, 1},
    {u"CInt", ConvertFunction<ToInteger>, 1, 1},
    {u"CLng", ConvertFunction<ToLong>, 1, 1},
    {u"CSng", ConvertFunction<ToSingle>, 1, 1},
    {u"CStr", CStrFunction, 1, 1},
    {u"Hex", HexFunction, 1, 1},
    {u"Oct", OctFunction, 1, 1},
};

}  // namespace

std::span<const Builtin> ConversionFunctions() { return kConversionFunctions; }

}  // namespace cardwright::vbscript
