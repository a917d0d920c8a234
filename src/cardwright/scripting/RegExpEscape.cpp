// SPDX-License-Identifier: MIT
#include "cardwright/scripting/RegExpEscape.h"

#include <algorithm>

namespace cardwright::scripting {

namespace {

// Value of a digit in a base of up to 16; -1 for what is none.
int DigitValue(char16_t unit, int base) noexcept {
  int value = -1;
  if (unit >= u'0' && unit <= u'9') value = unit - u'0';
  if (unit >= u'a' && unit <= u'f') value = unit - u'a' + 10;
  if (unit >= u'A' && unit <= u'F') value = unit - u'A' + 10;
  return value < base ? value : -1;
}

// The letter and its hexadecimal digits, or the letter alone where there are fewer than `digits`.
RegExpEscape Hexadecimal(std::u16string_view rest, std::size_t digits) {
  RegExpEscape result{.unit = rest[0], .length = 1};
  if (rest.size() <= digits) return result;
  int value = 0;
  for (std::size_t i = 1; i <= digits; ++i) {
    const int digit = DigitValue(rest[i], 16);
    if (digit < 0) return result;
    value = value * 16 + digit;
  }
  return {.unit = static_cast<char16_t>(value), .length = digits + 1};
}

// Up to three octal digits, as many as stay within a byte.
RegExpEscape Octal(std::u16string_view rest) {
  RegExpEscape result;
  int value = 0;
  while (result.length < 3 && result.length < rest.size()) {
    const int digit = DigitValue(rest[result.length], 8);
    if (digit < 0 || value * 8 + digit > 0xFF) break;
    value = value * 8 + digit;
    ++result.length;
  }
  result.unit = static_cast<char16_t>(value);
  return result;
}

RegExpEscape Control(std::u16string_view rest) {
  if (rest.size() < 2) return {.unit = u'\\', .length = 0};
  const auto letter = static_cast<char16_t>(rest[1] | 0x20);
  if (rest[1] >= 0x80 || letter < u'a' || letter > u'z') return {.unit = u'\\', .length = 0};
  return {.unit = static_cast<char16_t>(letter & 0x1F), .length = 2};
}

}  // namespace

RegExpEscape ReadEscape(std::u16string_view rest) {
  switch (rest[0]) {
    case u'd': return {.set = &CodeUnitSet::Digits(), .length = 1};
    case u'D': return {.set = &CodeUnitSet::Digits(), .isNegated = true, .length = 1};
    case u'w': return {.set = &CodeUnitSet::WordUnits(), .length = 1};
    case u'W': return {.set = &CodeUnitSet::WordUnits(), .isNegated = true, .length = 1};
    case u's': return {.set = &CodeUnitSet::Blanks(), .length = 1};
    case u'S': return {.set = &CodeUnitSet::Blanks(), .isNegated = true, .length = 1};
    case u'f': return {.unit = u'\f', .length = 1};
    case u'n': return {.unit = u'\n', .length = 1};
    case u'r': return {.unit = u'\r', .length = 1};
    case u't': return {.unit = u'\t', .length = 1};
    case u'v': return {.unit = u'\v', .length = 1};
    case u'c': return Control(rest);
    case u'x': return Hexadecimal(rest, 2);
    case u'u': return Hexadecimal(rest, 4);
    default: break;
  }
  if (rest[0] >= u'0' && rest[0] <= u'7') return Octal(rest);
  return {.unit = rest[0], .length = 1};
}

RegExpNumber ReadNumber(std::u16string_view text, int limit) noexcept {
  RegExpNumber result;
  for (const char16_t unit : text) {
    const int digit = DigitValue(unit, 10);
    if (digit < 0) break;
    // Past the limit only the digits are counted, so that no number is too long to read.
    if (result.value <= limit) result.value = std::min(result.value * 10 + digit, limit + 1);
    ++result.digits;
  }
  return result;
}

}  // namespace cardwright::scripting
