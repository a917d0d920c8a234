// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/operators/DecimalMath.h"

#include <algorithm>
#include <array>

#include "cardwright/automation/Errors.h"

namespace cardwright::vbscript {

namespace {

__extension__ using UInt128 = unsigned __int128;

constexpr int kMaxScale = 28;
constexpr UInt128 kMaxMagnitude = (UInt128{1} << 96) - 1;

UInt128 Magnitude(const Decimal& value) noexcept { return (UInt128{value.high} << 64) | value.low; }

Decimal Make(UInt128 magnitude, int scale, bool negative) {
  if (magnitude > kMaxMagnitude) Raise(ErrorNumber::Overflow);
  return {static_cast<std::uint64_t>(magnitude), static_cast<std::uint32_t>(magnitude >> 64),
          static_cast<std::uint8_t>(scale), negative && magnitude != 0};
}

/// A number of 192 bits, lowest word first: enough for the product of two magnitudes, and for one brought to
/// the decimals of the other.
class Words {
 public:
  explicit Words(UInt128 value) noexcept
      : m_Words{static_cast<std::uint64_t>(value), static_cast<std::uint64_t>(value >> 64), 0} {}

  static Words Product(UInt128 a, UInt128 b) noexcept {
    Words result(0);
    const auto high = static_cast<std::uint64_t>(b >> 64);
    const auto low = static_cast<std::uint64_t>(b);
    result = Words(a).Times(high);
    result.m_Words = {0, result.m_Words[0], result.m_Words[1]};
    return result.Plus(Words(a).Times(low));
  }

  Words Times(std::uint64_t factor) const noexcept {
    Words result(0);
    UInt128 carry = 0;
    for (std::size_t i = 0; i < m_Words.size(); ++i) {
      carry += UInt128{m_Words[i]} * factor;
      result.m_Words[i] = static_cast<std::uint64_t>(carry);
      carry >>= 64;
    }
    return result;
  }
  Words Plus(const Words& other) const noexcept {
    Words result(0);
    UInt128 carry = 0;
    for (std::size_t i = 0; i < m_Words.size(); ++i) {
      carry += UInt128{m_Words[i]} + other.m_Words[i];
      result.m_Words[i] = static_cast<std::uint64_t>(carry);
      carry >>= 64;
    }
    return result;
  }
  /// `other` is not the larger one.
  Words Minus(const Words& other) const noexcept {
    Words result(0);
    bool borrow = false;
    for (std::size_t i = 0; i < m_Words.size(); ++i) {
      const UInt128 taken = UInt128{other.m_Words[i]} + (borrow ? 1 : 0);
      borrow = m_Words[i] < taken;
      result.m_Words[i] = static_cast<std::uint64_t>(m_Words[i] - taken);
    }
    return result;
  }
  /// Divides by ten and returns the remainder.
  unsigned CutDigit() noexcept {
    UInt128 rest = 0;
    for (std::size_t i = m_Words.size(); i-- > 0;) {
      const UInt128 part = (rest << 64) | m_Words[i];
      m_Words[i] = static_cast<std::uint64_t>(part / 10);
      rest = part % 10;
    }
    return static_cast<unsigned>(rest);
  }
  bool FitsDecimal() const noexcept { return m_Words[2] == 0 && (m_Words[1] >> 32) == 0; }
  UInt128 Low() const noexcept { return (UInt128{m_Words[1]} << 64) | m_Words[0]; }

  friend bool operator<(const Words& a, const Words& b) noexcept {
    return std::lexicographical_compare(a.m_Words.rbegin(), a.m_Words.rend(), b.m_Words.rbegin(),
                                        b.m_Words.rend());
  }

 private:
  std::array<std::uint64_t, 3> m_Words;
};

Words Scaled(const Decimal& value, int scale) noexcept {
  Words words(Magnitude(value));
  for (int i = value.scale; i < scale; ++i) words = words.Times(10);
  return words;
}

// Cuts decimals until the number fits, and rounds once, at the end.
Decimal Rounded(Words words, int scale, bool negative, int maxScale = kMaxScale) {
  unsigned last = 0;
  bool more = false;  // whether anything but zeros came before the last digit cut
  while (scale > maxScale || (!words.FitsDecimal() && scale > 0)) {
    more = more || last != 0;
    last = words.CutDigit();
    --scale;
  }
  if (!words.FitsDecimal()) Raise(ErrorNumber::Overflow);
  UInt128 magnitude = words.Low();
  if (last > 5 || (last == 5 && (more || magnitude % 2 != 0))) ++magnitude;
  if (magnitude > kMaxMagnitude && scale > 0) return Rounded(Words(magnitude), scale, negative);
  return Make(magnitude, scale, negative);
}

}  // namespace

bool IsZero(const Decimal& value) noexcept { return value.low == 0 && value.high == 0; }

Decimal AddDecimals(const Decimal& a, const Decimal& b) {
  const int scale = std::max(a.scale, b.scale);
  const Words x = Scaled(a, scale);
  const Words y = Scaled(b, scale);
  if (a.negative == b.negative) return Rounded(x.Plus(y), scale, a.negative);
  return x < y ? Rounded(y.Minus(x), scale, b.negative) : Rounded(x.Minus(y), scale, a.negative);
}

Decimal MultiplyDecimals(const Decimal& a, const Decimal& b) {
  return Rounded(Words::Product(Magnitude(a), Magnitude(b)), a.scale + b.scale, a.negative != b.negative);
}

Decimal DivideDecimals(const Decimal& a, const Decimal& b) {
  const UInt128 divisor = Magnitude(b);
  UInt128 quotient = Magnitude(a) / divisor;
  UInt128 rest = Magnitude(a) % divisor;
  int scale = a.scale - b.scale;
  // Adds one decimal at a time while there is a remainder and the number fits.
  while (scale < 0 || (rest != 0 && scale < kMaxScale && quotient <= (kMaxMagnitude - 9) / 10)) {
    if (quotient > kMaxMagnitude) Raise(ErrorNumber::Overflow);
    rest *= 10;
    quotient = quotient * 10 + rest / divisor;
    rest %= divisor;
    ++scale;
  }
  if (rest * 2 > divisor || (rest * 2 == divisor && quotient % 2 != 0)) ++quotient;
  return Rounded(Words(quotient), scale, a.negative != b.negative);
}

Decimal RoundDecimal(const Decimal& value, int decimals) {
  return Rounded(Words(Magnitude(value)), value.scale, value.negative, decimals);
}

Decimal TruncateDecimal(const Decimal& value) noexcept {
  UInt128 magnitude = Magnitude(value);
  for (int i = 0; i < value.scale; ++i) magnitude /= 10;
  return Make(magnitude, 0, value.negative);
}

Ordering CompareDecimals(const Decimal& a, const Decimal& b) noexcept {
  if (IsZero(a) && IsZero(b)) return Ordering::Equal;
  const bool negative = a.negative && !IsZero(a);
  if (negative != (b.negative && !IsZero(b))) return negative ? Ordering::Less : Ordering::Greater;
  const int scale = std::max(a.scale, b.scale);
  const Words x = Scaled(a, scale);
  const Words y = Scaled(b, scale);
  if (x < y) return negative ? Ordering::Greater : Ordering::Less;
  if (y < x) return negative ? Ordering::Less : Ordering::Greater;
  return Ordering::Equal;
}

}  // namespace cardwright::vbscript
