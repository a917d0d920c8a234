#include <cmath>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/builtins/Conversion.h"
#include "cardwright/vbscript/operators/DecimalMath.h"
#include "cardwright/vbscript/operators/Operand.h"

namespace cardwright::vbscript::conversion {

namespace {

constexpr int kMaxDecimals = 22;
constexpr int kCurrencyDecimals = 4;
constexpr std::int64_t kTenThousand = 10000;

/// Applies one way of rounding to a number of any type. A way offers itself for Double, Currency and Decimal.
template <class Way>
Variant Rounded(const Variant& number, const Way& way) {
  const Operand value(number);
  switch (value.Kind()) {
    case Side::Empty:
    case Side::Boolean: return FittingWhole(WholeValue(value), Working::Integer);
    case Side::Byte:
    case Side::Integer:
    case Side::Long:
    case Side::Null: return value.Value();
    case Side::Single: return static_cast<float>(way.Of(RealValue(value)));
    case Side::Double:
    case Side::Text: return way.Of(RealValue(value));
    case Side::Date: return FittingDate(way.Of(RealValue(value)));
    case Side::Currency: return way.Of(value.Value().CurrencyValue());
    case Side::Decimal: return way.Of(value.Value().DecimalValue());
    case Side::Unfit: Raise(ErrorNumber::TypeMismatch);
  }
  return {};
}

/// Towards zero.
struct Truncation {
  static double Of(double value) noexcept { return std::trunc(value); }
  static Currency Of(Currency value) noexcept {
    return {value.tenThousandths - value.tenThousandths % kTenThousand};
  }
  static Decimal Of(const Decimal& value) noexcept { return TruncateDecimal(value); }
};

/// Down, also below zero.
struct Floor {
  static double Of(double value) noexcept { return std::floor(value); }
  static Currency Of(Currency value) {
    const std::int64_t rest = value.tenThousandths % kTenThousand;
    std::int64_t result = value.tenThousandths - rest;
    if (rest < 0 && __builtin_sub_overflow(result, kTenThousand, &result)) Raise(ErrorNumber::Overflow);
    return {result};
  }
  static Decimal Of(const Decimal& value) {
    const Decimal whole = TruncateDecimal(value);
    if (!value.negative || CompareDecimals(whole, value) == Ordering::Equal) return whole;
    return AddDecimals(whole, {.low = 1, .negative = true});
  }
};

/// Half to even at a number of decimals.
struct HalfToEven {
  int decimals;

  double Of(double value) const noexcept {
    const double scale = std::pow(10.0, decimals);
    const double scaled = value * scale;
    // Beyond 2^52 there are no halves left to round.
    return std::fabs(scaled) < 0x1p52 ? std::nearbyint(scaled) / scale : value;
  }
  Currency Of(Currency value) const {
    if (decimals >= kCurrencyDecimals) return value;
    const Decimal exact = ToDecimal(value);
    return ToCurrency(RoundDecimal(exact, decimals));
  }
  Decimal Of(const Decimal& value) const { return RoundDecimal(value, decimals); }
};

}  // namespace

Variant Int(Context&, Args args) { return Rounded(args[0], Floor{}); }
Variant Fix(Context&, Args args) { return Rounded(args[0], Truncation{}); }

Variant Round(Context&, Args args) {
  const bool hasDecimals = args.size() > 1 && !args[1].IsMissing();
  const std::int32_t decimals = hasDecimals ? ToLong(args[1]) : 0;
  if (decimals < 0 || decimals > kMaxDecimals) Raise(ErrorNumber::InvalidCall);
  return Rounded(args[0], HalfToEven{decimals});
}

}  // namespace cardwright::vbscript::conversion
