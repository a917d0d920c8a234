// SPDX-License-Identifier: MIT
#include <charconv>
#include <string>

#include "cardwright/vbscript/syntax/Characters.h"
#include "cardwright/vbscript/syntax/Literals.h"

namespace cardwright::vbscript {

namespace {

std::optional<Variant> BitsValue(std::u16string_view spelling) {
  const bool isHex = spelling[1] == u'h' || spelling[1] == u'H';
  const std::uint64_t base = isHex ? 16 : 8;
  const bool isLong = spelling.back() == u'&';
  const std::size_t first = IsDigit(spelling[1]) ? 1 : 2;
  std::uint64_t bits = 0;
  for (const char16_t c : spelling.substr(first, spelling.size() - first - (isLong ? 1 : 0))) {
    bits = bits * base + static_cast<std::uint64_t>(IsDigit(c) ? c - u'0' : (c | 0x20) - u'a' + 10);
    if (bits > 0xFFFFFFFFu) return std::nullopt;
  }
  if (bits <= 0xFFFF && !isLong) return static_cast<std::int16_t>(bits);
  return static_cast<std::int32_t>(bits);
}

/// The number where it consists of at most nine digits, as most do; -1 otherwise.
std::int32_t SmallValue(std::u16string_view spelling) {
  constexpr std::size_t kDigits = 9;
  if (spelling.size() > kDigits) return -1;
  std::int32_t value = 0;
  for (const char16_t c : spelling) {
    if (!IsDigit(c)) return -1;
    value = value * 10 + (c - u'0');
  }
  return value;
}

std::string Ascii(std::u16string_view spelling) {
  std::string text;
  text.reserve(spelling.size());
  for (const char16_t c : spelling) text += static_cast<char>(c);
  return text;
}

/// Whether a number out of the range of a Double is too small, rather than too large.
bool IsTiny(std::string_view number) {
  const std::size_t exponentMark = number.find_first_of("eE");
  const std::size_t firstDigit = number.find_first_of("123456789");
  if (firstDigit >= exponentMark) return true;
  const std::string_view mantissa = number.substr(0, exponentMark);
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const double places = static_cast<double>(point) - static_cast<double>(firstDigit);
  double exponent = 0;
  if (exponentMark != std::string_view::npos) {
    const bool isNegative = number[exponentMark + 1] == '-';
    for (const char c : number.substr(exponentMark + 1)) {
      if (c >= '0' && c <= '9') exponent = std::min(exponent * 10 + (c - '0'), 1e18);
    }
    if (isNegative) exponent = -exponent;
  }
  return places + exponent < 0;
}

}  // namespace

std::optional<Variant> NumberValue(std::u16string_view spelling) {
  if (spelling.front() == u'&') return BitsValue(spelling);
  if (const std::int32_t small = SmallValue(spelling); small >= 0) {
    if (small <= 0x7FFF) return static_cast<std::int16_t>(small);
    return small;
  }
  const std::string number = Ascii(spelling);
  const bool isWhole = number.find_first_of(".eE") == std::string::npos;
  std::int32_t whole = 0;
  if (isWhole && std::from_chars(number.data(), number.data() + number.size(), whole).ec == std::errc{}) {
    if (whole <= 0x7FFF) return static_cast<std::int16_t>(whole);
    return whole;
  }
  double value = 0;
  const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
  if (read.ec == std::errc{}) return value;
  if (IsTiny(number)) return 0.0;
  return std::nullopt;
}

}  // namespace cardwright::vbscript
