#include <algorithm>
#include <cmath>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/builtins/MathRandom.h"
#include "cardwright/vbscript/operators/Operand.h"
#include "cardwright/vbscript/operators/Operators.h"

namespace cardwright::vbscript {

namespace {

using RealFunction = double (*)(double);

// A function of the reals. Error 5 where it has no value, 6 where that is too large.
template <RealFunction Function>
Variant Real(Context&, Args args) {
  const double result = Function(ToDouble(args[0]));
  if (std::isnan(result)) Raise(ErrorNumber::InvalidCall);
  return FiniteDouble(result);
}

double Logarithm(double value) {
  if (value <= 0) Raise(ErrorNumber::InvalidCall);
  return std::log(value);
}

bool IsNegative(const Operand& value) {
  const Side kind = value.Kind();
  if (kind == Side::Currency) return value.Value().CurrencyValue().tenThousandths < 0;
  if (kind == Side::Decimal) return value.Value().DecimalValue().negative;
  return RealValue(value) < 0;
}

// The type stays, but a Boolean or a text becomes a number, and what has no positive counterpart a larger
// type.
Variant Abs(Context&, Args args) {
  const Operand value(args[0]);
  if (value.Kind() == Side::Null) return Variant::Null();
  if (IsNegative(value)) return Negate(value);
  switch (value.Kind()) {
    case Side::Empty:
    case Side::Boolean: return std::int16_t{0};
    case Side::Text: return RealValue(value);
    default: return value.Value();
  }
}

Variant Sgn(Context&, Args args) {
  const double number = ToDouble(args[0]);
  return static_cast<std::int16_t>((number > 0) - (number < 0));
}

std::int32_t ColourPart(const Variant& value) {
  const std::int32_t part = ToInteger(value);
  if (part < 0) Raise(ErrorNumber::InvalidCall);
  return std::min(part, 255);
}

Variant Rgb(Context&, Args args) {
  const std::int32_t red = ColourPart(args[0]);
  const std::int32_t green = ColourPart(args[1]);
  const std::int32_t blue = ColourPart(args[2]);
  return red | (green << 8) | (blue << 16);
}

constexpr Builtin kMathFunctions[] = {
    {u"Abs", Abs, 1, 1},
    {u"Atn", Real<std::atan>, 1, 1},
    {u"Cos", Real<std::cos>, 1, 1},
    {u"Exp", Real<std::exp>, 1, 1},
    {u"Log", Real<Logarithm>, 1, 1},
    {u"Randomize", Randomize, 0, 1},
    {u"RGB", Rgb, 3, 3},
    {u"Rnd", Rnd, 0, 1},
    {u"Sgn", Sgn, 1, 1},
    {u"Sin", Real<std::sin>, 1, 1},
    {u"Sqr", Real<std::sqrt>, 1, 1},
    {u"Tan", Real<std::tan>, 1, 1},
};

}  // namespace

std::span<const Builtin> MathFunctions() { return kMathFunctions; }

}  // namespace cardwright::vbscript
