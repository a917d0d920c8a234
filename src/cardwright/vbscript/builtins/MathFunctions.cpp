// SPDX-License-Identifier: MIT
#include <algorithm>
#include <bit>
#include <cmath>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/builtins/BuiltinArguments.h"
#include "cardwright/vbscript/builtins/LocalClock.h"
#include "cardwright/vbscript/operators/DecimalMath.h"
#include "cardwright/vbscript/operators/Operand.h"
#include "cardwright/vbscript/operators/Operators.h"

// Functions of numbers, rounding and random numbers.
namespace cardwright::vbscript {

namespace {

using RealFunction = double (*)(double);

// Atn(number), Cos(number), Exp(number), Log(number), Sin(number), Sqr(number), Tan(number): error 5 where
// the function has no value, 6 where that is too large for a Double.
template <RealFunction Function>
Variant RealNumberFunction(Context&, Args args) {
  const double result = Function(ToDouble(args[0]));
  if (std::isnan(result)) Raise(ErrorNumber::InvalidCall);
  return FiniteDouble(result);
}

double Logarithm(double value) {
  if (value <= 0) Raise(ErrorNumber::InvalidCall);
  return std::log(value);
}

bool IsNegative(const Operand& value) {
  const OperandType kind = value.Kind();
  if (kind == OperandType::Currency) return value.Value().CurrencyValue().tenThousandths < 0;
  if (kind == OperandType::Decimal) return value.Value().DecimalValue().negative;
  return RealValue(value) < 0;
}

// Abs(number): the type stays, but a Boolean or a string becomes a number. The smallest number of a type,
// which has no positive counterpart, becomes one of a larger type.
Variant AbsFunction(Context&, Args args) {
  const Operand value(args[0]);
  if (value.Kind() == OperandType::Null) return Variant::Null();
  if (IsNegative(value)) return Negate(value);
  switch (value.Kind()) {
    case OperandType::Empty:
    case OperandType::Boolean: return std::int16_t{0};
    case OperandType::Text: return RealValue(value);
    default: return value.Value();
  }
}

// Sgn(number): -1, 0 or 1.
Variant SgnFunction(Context&, Args args) {
  const double number = ToDouble(args[0]);
  return static_cast<std::int16_t>((number > 0) - (number < 0));
}

std::int32_t ColorPart(const Variant& value) {
  const std::int32_t part = ToInteger(value);
  if (part < 0) Raise(ErrorNumber::InvalidCall);
  return std::min(part, 255);
}

// RGB(red, green, blue): more than 255 counts as 255.
Variant RgbFunction(Context&, Args args) {
  const std::int32_t red = ColorPart(args[0]);
  const std::int32_t green = ColorPart(args[1]);
  const std::int32_t blue = ColorPart(args[2]);
  return red | (green << 8) | (blue << 16);
}

constexpr int kMaxRoundDecimals = 22;
constexpr int kCurrencyDecimals = 4;
constexpr std::int64_t kCurrencyUnit = 10000;  // ten-thousandths

// Rounds a number of any type and keeps the type; a Boolean becomes an Integer, a string a Double. A way of
// rounding defines what it does with Double, Currency and Decimal.
template <class Way>
Variant RoundNumber(const Variant& number, const Way& way) {
  const Operand value(number);
  switch (value.Kind()) {
    case OperandType::Empty:
    case OperandType::Boolean: return FittingWhole(WholeValue(value), WorkingType::Integer);
    case OperandType::Byte:
    case OperandType::Integer:
    case OperandType::Long:
    case OperandType::Null: return value.Value();
    case OperandType::Single: return static_cast<float>(way.Of(RealValue(value)));
    case OperandType::Double:
    case OperandType::Text: return way.Of(RealValue(value));
    case OperandType::Date: return FittingDate(way.Of(RealValue(value)));
    case OperandType::Currency: return way.Of(value.Value().CurrencyValue());
    case OperandType::Decimal: return way.Of(value.Value().DecimalValue());
    case OperandType::Unsupported: Raise(ErrorNumber::TypeMismatch);
  }
  return {};
}

// Towards zero.
struct Truncation {
  static double Of(double value) noexcept { return std::trunc(value); }
  static Currency Of(Currency value) noexcept {
    return {value.tenThousandths - value.tenThousandths % kCurrencyUnit};
  }
  static Decimal Of(const Decimal& value) noexcept { return TruncateDecimal(value); }
};

// Down, below zero too.
struct Floor {
  static double Of(double value) noexcept { return std::floor(value); }
  static Currency Of(Currency value) {
    const std::int64_t rest = value.tenThousandths % kCurrencyUnit;
    std::int64_t result = value.tenThousandths - rest;
    if (rest < 0 && __builtin_sub_overflow(result, kCurrencyUnit, &result)) Raise(ErrorNumber::Overflow);
    return {result};
  }
  static Decimal Of(const Decimal& value) {
    const Decimal whole = TruncateDecimal(value);
    if (!value.negative || CompareDecimals(whole, value) == Ordering::Equal) return whole;
    return AddDecimals(whole, {.low = 1, .negative = true});
  }
};

// Half to even, to a number of decimals.
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

// Int(number)
Variant IntFunction(Context&, Args args) { return RoundNumber(args[0], Floor{}); }

// Fix(number)
Variant FixFunction(Context&, Args args) { return RoundNumber(args[0], Truncation{}); }

// Round(expression[, decimals]): 0 to 22 decimals.
Variant RoundFunction(Context&, Args args) {
  const std::int32_t decimals = LongOr(args, 1, 0);
  if (decimals < 0 || decimals > kMaxRoundDecimals) Raise(ErrorNumber::InvalidCall);
  return RoundNumber(args[0], HalfToEven{decimals});
}

// The language's own linear congruential generator of 24 bits. Scripts rely on its sequences (Rnd(-1), then
// Randomize n, then the same numbers each time), so it must not be improved.
constexpr std::uint32_t kRandomMask = 0xFFFFFF;
constexpr float kRandomRange = 0x1p24F;

std::uint32_t NextRandom(std::uint32_t seed) noexcept {
  constexpr std::uint32_t kFactor = 1140671485, kIncrement = 12820163;
  return (seed * kFactor + kIncrement) & kRandomMask;
}

// Rnd([number]): the next number from 0 up to 1; for 0 the last one again; for a negative number the one that
// belongs to it, from which the sequence goes on.
Variant RndFunction(Context& context, Args args) {
  const Variant* argument = ArgumentAt(args, 0);
  const float number = argument ? ToSingle(*argument) : 1;
  if (number < 0) {
    const auto bits = std::bit_cast<std::uint32_t>(number);
    context.randomSeed = (bits + (bits >> 24)) & kRandomMask;
  }
  if (number != 0) context.randomSeed = NextRandom(context.randomSeed);
  return static_cast<float>(context.randomSeed) / kRandomRange;
}

// Randomize [number]: continues the sequence from a place that depends on the number, or on the time of day,
// and on where the sequence was: only the upper half of the number counts, folded into 16 bits, and the
// lowest byte of the state stays.
Variant RandomizeFunction(Context& context, Args args) {
  const Variant* argument = ArgumentAt(args, 0);
  const double number = argument ? ToDouble(*argument) : ReadLocalClock().SecondsSinceMidnight();
  const auto upper = static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(number) >> 32);
  const std::uint32_t folded = (upper ^ (upper >> 16)) & 0xFFFF;
  context.randomSeed = (context.randomSeed & 0xFF) | (folded << 8);
  return {};
}

constexpr Builtin kMathFunctions[] = {
    {u"Abs", AbsFunction, 1, 1},
    {u"Atn", RealNumberFunction<std::atan>, 1, 1},
    {u"Cos", RealNumberFunction<std::cos>, 1, 1},
    {u"Exp", RealNumberFunction<std::exp>, 1, 1},
    {u"Fix", FixFunction, 1, 1},
    {u"Int", IntFunction, 1, 1},
    {u"Log", RealNumberFunction<Logarithm>, 1, 1},
    {u"Randomize", RandomizeFunction, 0, 1},
    {u"RGB", RgbFunction, 3, 3},
    {u"Rnd", RndFunction, 0, 1},
    {u"Round", RoundFunction, 1, 2},
    {u"Sgn", SgnFunction, 1, 1},
    {u"Sin", RealNumberFunction<std::sin>, 1, 1},
    {u"Sqr", RealNumberFunction<std::sqrt>, 1, 1},
    {u"Tan", RealNumberFunction<std::tan>, 1, 1},
};

}  // namespace

std::span<const Builtin> MathFunctions() { return kMathFunctions; }

}  // namespace cardwright::vbscript
