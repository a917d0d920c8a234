// SPDX-License-Identifier: MIT
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>

#include "cardwright/automation/Conversions.h"

namespace cardwright {

namespace {

// The text without the white space that Val skips anywhere, up to the first character that cannot be part of
// a number.
std::string NumberCharacters(std::u16string_view text) {
  constexpr std::u16string_view kPassedOver = u" \t\n";
  constexpr std::u16string_view kInNumbers = u"0123456789abcdefho&.+-";
  std::string result;
  for (const char16_t c : text) {
    if (kPassedOver.find(c) != std::u16string_view::npos) continue;
    if (kInNumbers.find(ToLower(c)) == std::u16string_view::npos) break;
    result += static_cast<char>(ToLower(c));
  }
  return result;
}

double Bits(std::string_view digits, int base) noexcept {
  std::uint64_t bits = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), bits, base);
  if (read.ec == std::errc::invalid_argument) return 0;
  if (read.ec == std::errc::result_out_of_range) return std::numeric_limits<double>::infinity();
  // A number that fits an Integer is one, sign bit and all, unless "&" makes it a Long.
  const bool isLong = read.ptr != digits.data() + digits.size() && *read.ptr == '&';
  if (bits <= 0xFFFF && !isLong) return static_cast<std::int16_t>(bits);
  if (bits <= 0xFFFFFFFF) return static_cast<std::int32_t>(bits);
  return static_cast<double>(bits);
}

bool IsDigit(char c) noexcept { return c >= '0' && c <= '9'; }

std::size_t SkipDigits(std::string_view text, std::size_t from) noexcept {
  while (from < text.size() && IsDigit(text[from])) ++from;
  return from;
}

// Length of the decimal number at the start of `text`; 'd' marks an exponent as 'e' does.
std::size_t NumberLength(std::string_view text) noexcept {
  std::size_t end = SkipDigits(text, 0);
  bool any = end > 0;
  if (end < text.size() && text[end] == '.') {
    const std::size_t decimals = end + 1;
    end = SkipDigits(text, decimals);
    any = any || end > decimals;
  }
  if (!any) return 0;
  if (end < text.size() && (text[end] == 'e' || text[end] == 'd')) {
    std::size_t power = end + 1;
    if (power < text.size() && (text[power] == '+' || text[power] == '-')) ++power;
    const std::size_t powerEnd = SkipDigits(text, power);
    if (powerEnd > power) end = powerEnd;
  }
  return end;
}

double Magnitude(std::string number) noexcept {
  for (char& c : number) {
    if (c == 'd') c = 'e';
  }
  if (const std::size_t sign = number.find("e+"); sign != std::string::npos) number.erase(sign + 1, 1);
  double value = 0;
  const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
  if (read.ec != std::errc::result_out_of_range) return value;
  return number.find("e-") == std::string::npos ? std::numeric_limits<double>::infinity() : 0;
}

}  // namespace

double Val(std::u16string_view text) noexcept {
  const std::string characters = NumberCharacters(text);
  std::string_view rest = characters;
  if (rest.starts_with("&h")) return Bits(rest.substr(2), 16);
  if (rest.starts_with("&o")) return Bits(rest.substr(2), 8);
  const bool negative = rest.starts_with('-');
  if (negative || rest.starts_with('+')) rest.remove_prefix(1);
  const std::size_t length = NumberLength(rest);
  if (length == 0) return 0;
  const double magnitude = Magnitude(std::string(rest.substr(0, length)));
  return negative ? -magnitude : magnitude;
}

}  // namespace cardwright
