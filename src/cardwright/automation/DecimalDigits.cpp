// SPDX-License-Identifier: MIT
#include "cardwright/automation/DecimalDigits.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string_view>

#include "cardwright/automation/Errors.h"

namespace cardwright {

namespace {

__extension__ using Wide = unsigned __int128;

constexpr int kMaxScale = 28;
constexpr std::size_t kMaxDecimalDigits = 29;
constexpr Wide kMaxDecimal = (Wide{1} << 96) - 1;

std::string DigitsOf(Wide value) {
  std::string digits;
  for (; value != 0; value /= 10) digits += static_cast<char>('0' + static_cast<int>(value % 10));
  std::reverse(digits.begin(), digits.end());
  return digits;
}

Wide ValueOf(std::string_view digits) {
  Wide value = 0;
  for (const char digit : digits) value = value * 10 + static_cast<unsigned>(digit - '0');
  return value;
}

void Increment(std::string& digits) {
  for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
    if (*digit != '9') {
      ++*digit;
      return;
    }
    *digit = '0';
  }
  digits.insert(digits.begin(), '1');
}

// Reads what to_chars writes in scientific form: "-d.ddde-dd".
DecimalDigits FromScientific(std::string_view text) {
  DecimalDigits result;
  if (text.front() == '-') {
    result.negative = true;
    text.remove_prefix(1);
  }
  const std::size_t e = text.find('e');
  result.exponent = std::atoi(text.data() + e + 1);
  for (const char c : text.substr(0, e)) {
    if (c != '.') result.digits += c;
  }
  result.exponent -= static_cast<int>(result.digits.size()) - 1;
  result.DropTrailingZeros();
  if (result.digits.find_first_not_of('0') == std::string::npos) return {};
  return result;
}

template <class Float, class... Precision>
DecimalDigits FromFloat(Float value, Precision... precision) {
  char buffer[64];
  const auto end =
      std::to_chars(buffer, std::end(buffer) - 1, value, std::chars_format::scientific, precision...);
  *end.ptr = '\0';
  return FromScientific({buffer, end.ptr});
}

}  // namespace

DecimalDigits DecimalDigits::Of(Currency value) {
  const bool negative = value.tenThousandths < 0;
  const auto bits = static_cast<std::uint64_t>(value.tenThousandths);
  DecimalDigits result{negative, DigitsOf(negative ? 0 - bits : bits), -4};
  result.DropTrailingZeros();
  return result;
}

DecimalDigits DecimalDigits::Of(Decimal value) {
  return {value.negative, DigitsOf((Wide{value.high} << 64) | value.low), -value.scale};
}

DecimalDigits DecimalDigits::Of(double value, int significant) { return FromFloat(value, significant - 1); }
DecimalDigits DecimalDigits::Shortest(double value) { return FromFloat(value); }
DecimalDigits DecimalDigits::Shortest(float value) { return FromFloat(value); }

std::string DecimalDigits::CutTo(int unit) {
  if (exponent >= unit) return {};
  const auto dropped = static_cast<std::size_t>(unit - exponent);
  exponent = unit;
  if (dropped > digits.size()) {
    digits.clear();
    return {};
  }
  std::string tail = digits.substr(digits.size() - dropped);
  digits.resize(digits.size() - dropped);
  return tail;
}

void DecimalDigits::RoundTo(int unit) {
  const std::string tail = CutTo(unit);
  if (tail.empty()) return;
  const bool tailHasMore = tail.find_first_not_of('0', 1) != std::string::npos;
  const bool isOdd = !digits.empty() && (digits.back() - '0') % 2 == 1;
  if (tail.front() > '5' || (tail.front() == '5' && (tailHasMore || isOdd))) Increment(digits);
}

void DecimalDigits::RoundAwayTo(int unit) {
  const std::string tail = CutTo(unit);
  if (!tail.empty() && tail.front() >= '5') Increment(digits);
}

void DecimalDigits::DropTrailingZeros() {
  while (!digits.empty() && digits.back() == '0') {
    digits.pop_back();
    ++exponent;
  }
}

std::optional<std::int64_t> DecimalDigits::Count(int unit) const {
  DecimalDigits rounded = *this;
  rounded.RoundTo(unit);
  if (rounded.digits.empty()) return 0;
  const auto zeros = static_cast<std::size_t>(rounded.exponent - unit);
  if (rounded.digits.size() + zeros > 19) return std::nullopt;
  const Wide magnitude = ValueOf(rounded.digits.append(zeros, '0'));
  const Wide limit = (Wide{1} << 63) - (negative ? 0 : 1);
  if (magnitude > limit) return std::nullopt;
  const auto bits = static_cast<std::uint64_t>(magnitude);
  return static_cast<std::int64_t>(negative ? 0 - bits : bits);
}

double DecimalDigits::ToDouble() const {
  if (digits.empty()) return 0;
  const std::string text = (negative ? "-" : "") + digits + "e" + std::to_string(exponent);
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc::result_out_of_range) return value;
  if (static_cast<std::int64_t>(digits.size()) + exponent > 0) Raise(ErrorNumber::Overflow);
  return 0;  // too small to tell from zero
}

Decimal DecimalDigits::ToDecimal() const {
  DecimalDigits rounded = *this;
  rounded.RoundTo(-kMaxScale);
  if (rounded.digits.empty()) return {};
  if (rounded.exponent > 0) {
    const auto zeros = static_cast<std::size_t>(rounded.exponent);
    if (rounded.digits.size() + zeros > kMaxDecimalDigits) Raise(ErrorNumber::Overflow);
    rounded.digits.append(zeros, '0');
    rounded.exponent = 0;
  }
  while (rounded.digits.size() > kMaxDecimalDigits || ValueOf(rounded.digits) > kMaxDecimal) {
    if (rounded.exponent == 0) Raise(ErrorNumber::Overflow);
    const int excess = static_cast<int>(rounded.digits.size()) - static_cast<int>(kMaxDecimalDigits);
    // Rounded from the start each time, as two roundings in a row can go astray.
    const int unit = std::min(0, rounded.exponent + std::max(1, excess));
    rounded = *this;
    rounded.RoundTo(unit);
  }
  const Wide value = ValueOf(rounded.digits);
  return {static_cast<std::uint64_t>(value), static_cast<std::uint32_t>(value >> 64),
          static_cast<std::uint8_t>(-rounded.exponent), negative};
}

std::string DecimalDigits::Plain() const {
  DecimalDigits plain = *this;
  plain.DropTrailingZeros();
  if (plain.digits.empty()) return "0";
  std::string text = plain.digits;
  if (plain.exponent >= 0) {
    text.append(static_cast<std::size_t>(plain.exponent), '0');
  } else {
    const auto decimals = static_cast<std::size_t>(-plain.exponent);
    if (text.size() <= decimals) text.insert(0, decimals - text.size() + 1, '0');
    text.insert(text.size() - decimals, 1, '.');
  }
  return negative ? "-" + text : text;
}

}  // namespace cardwright
