// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "cardwright/automation/Variant.h"

namespace cardwright {

/// The significant digits that the platform shows of each type.
inline constexpr int kDoubleDigits = 15, kSingleDigits = 7;

/// A number as decimal digits, (-1)^negative * digits * 10^exponent. Conversions between texts and the exact
/// types go through it, never through binary fractions. Zero has no digits.
struct DecimalDigits {
  bool negative = false;
  std::string digits;  ///< no zeros in front
  int exponent = 0;

  static DecimalDigits Of(Currency value);
  static DecimalDigits Of(Decimal value);
  /// The value to that many significant digits.
  static DecimalDigits Of(double value, int significant);
  /// The fewest digits that read back as the same value.
  static DecimalDigits Shortest(double value);
  static DecimalDigits Shortest(float value);

  /// Rounds half to even to a multiple of 10^unit.
  void RoundTo(int unit);
  /// The same, but half away from zero.
  void RoundAwayTo(int unit);
  void DropTrailingZeros();
  /// Multiples of 10^unit, rounded half to even; none where 64 bits do not hold them.
  std::optional<std::int64_t> Count(int unit) const;
  /// Nearest Double; error 6 beyond its range.
  double ToDouble() const;
  /// Error 6 beyond 96 bits; decimals that do not fit are rounded off.
  Decimal ToDecimal() const;
  /// Plain notation with a point, as "-12.5".
  std::string Plain() const;

 private:
  // Takes the digits below 10^unit off and answers them, unless they are too small to round up.
  std::string CutTo(int unit);
};

}  // namespace cardwright
