// SPDX-License-Identifier: MIT
#include "cardwright/orv/NumberParsing.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <string>

#include "cardwright/orv/CommandError.h"

namespace cardwright::orv {

namespace {

struct Range {
  std::int64_t least, greatest;
};

template <class Integer>
constexpr Range RangeOf() noexcept {
  return {std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max()};
}

Range RangeOf(const Column& column) noexcept {
  if (column.subtype == OFSTBoolean) return {0, 1};
  if (column.subtype == OFSTInt16) return RangeOf<std::int16_t>();
  if (column.type == OFTInteger) return RangeOf<std::int32_t>();
  return RangeOf<std::int64_t>();
}

/// "12.000" without its fraction. Fails where the fraction is not zero.
std::u16string_view WholePart(std::u16string_view text) {
  const std::size_t point = text.find(u'.');
  if (point == std::u16string_view::npos) return text;
  const auto fraction = text.substr(point + 1);
  if (fraction.find_first_not_of(u'0') != std::u16string_view::npos) Fail(u"is not a whole number.");
  return text.substr(0, point);
}

bool IsWhole(std::u16string_view text) noexcept {
  if (!text.empty() && (text.front() == u'-' || text.front() == u'+')) text.remove_prefix(1);
  return !text.empty() && text.find_first_not_of(u"0123456789") == std::u16string_view::npos;
}

/// Whether a text is sign, digits, point, digits and exponent, with a digit before the exponent. That
/// excludes "inf" and hexadecimal numbers, which std::from_chars would accept.
bool IsDecimal(std::string_view text) noexcept {
  std::size_t at = 0;
  const auto skipSign = [&] { at += at < text.size() && (text[at] == '-' || text[at] == '+'); };
  const auto skipDigits = [&] {
    const std::size_t from = at;
    while (at < text.size() && text[at] >= '0' && text[at] <= '9') ++at;
    return at - from;
  };
  skipSign();
  std::size_t digits = skipDigits();
  if (at < text.size() && text[at] == '.') {
    ++at;
    digits += skipDigits();
  }
  if (digits == 0) return false;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    ++at;
    skipSign();
    if (skipDigits() == 0) return false;
  }
  return at == text.size();
}

std::string Fixed(double value, int decimals) {
  char buffer[400 + 64];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
  return end.ec == std::errc() ? std::string(buffer, end.ptr) : std::string();
}

double FromChars(std::string_view text, std::errc& error) noexcept {
  double value = 0;
  error = std::from_chars(text.data(), text.data() + text.size(), value).ec;
  return value;
}

/// Fails for a whole number that a double cannot tell from its neighbours; 2^53 + 1 is the first.
void RequireWholeKept(std::string_view digits, double value) {
  if (digits.find_first_not_of("-0123456789") != std::string_view::npos) return;
  const bool negative = digits.starts_with('-');
  if (negative) digits.remove_prefix(1);
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size() - 1));
  if (Fixed(std::fabs(value), 0) != digits) Fail(u"has more digits than the column keeps.");
}

void RequireFits(double value, const Column& column) {
  if (column.width == 0) return;
  const std::string text = Fixed(value, column.precision);
  std::errc error{};
  if (column.precision > 0 && FromChars(text, error) != value)
    Fail(u"has more decimals than the column keeps.");
  if (text.size() > static_cast<std::size_t>(column.width)) Fail(u"is too long for the column.");
}

}  // namespace

std::int64_t ParseInteger(std::u16string_view text, const Column& column) {
  const auto whole = WholePart(text);
  if (!IsWhole(whole)) Fail(u"is not a whole number.");
  const auto number = ParseWhole(whole);
  const Range range = RangeOf(column);
  if (!number || *number < range.least || *number > range.greatest) Fail(u"is out of the column's range.");
  if (column.width > 0 && std::to_string(*number).size() > static_cast<std::size_t>(column.width))
    Fail(u"is too long for the column.");
  return *number;
}

double ParseReal(std::u16string_view text, const Column& column) {
  std::string plain;
  for (const char16_t c : text) plain += c < 0x80 ? static_cast<char>(c) : '?';
  if (!IsDecimal(plain)) Fail(u"is not a number.");
  if (plain.front() == '+') plain.erase(0, 1);
  std::errc error{};
  const double value = FromChars(plain, error);
  if (error != std::errc() || !std::isfinite(value)) Fail(u"is out of the column's range.");
  RequireWholeKept(plain, value);
  RequireFits(value, column);
  return value;
}

}  // namespace cardwright::orv
