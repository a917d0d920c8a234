// SPDX-License-Identifier: MIT
#include <cmath>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/operators/DecimalMath.h"
#include "cardwright/vbscript/operators/Operand.h"
#include "cardwright/vbscript/operators/Operators.h"

namespace cardwright::vbscript {

namespace {

// Zero divided by zero is not a division by zero but an overflow in the language.
void CheckDivisor(bool dividendIsZero, bool divisorIsZero) {
  if (divisorIsZero) Raise(dividendIsZero ? ErrorNumber::Overflow : ErrorNumber::DivisionByZero);
}

double Quotient(const Variant& a, const Variant& b) {
  const double dividend = RealValue(a);
  const double divisor = RealValue(b);
  CheckDivisor(dividend == 0, divisor == 0);
  return dividend / divisor;
}

Decimal DecimalQuotient(const Decimal& a, const Decimal& b) {
  CheckDivisor(IsZero(a), IsZero(b));
  return DivideDecimals(a, b);
}

// \ and Mod work on whole numbers: other operands are rounded first, half to even.
template <class Operation>
Variant OnWhole(const Variant& left, const Variant& right, Operation operation) {
  const Operand a(left);
  const Operand b(right);
  if (HasNull(a.Kind(), b.Kind())) return Variant::Null();
  const WorkingType type = RuleOf(kWholeRules, a.Kind(), b.Kind());
  const std::int64_t dividend = ToLong(a);
  const std::int64_t divisor = ToLong(b);
  if (divisor == 0) Raise(ErrorNumber::DivisionByZero);
  Variant result = FittingWhole(operation(dividend, divisor), type);
  // Only the smallest Long divided by -1; there is no larger whole type.
  if (result.Type() == VarType::Double) Raise(ErrorNumber::Overflow);
  return result;
}

}  // namespace

Variant Divide(const Variant& left, const Variant& right) {
  const Operand a(left);
  const Operand b(right);
  if (HasNull(a.Kind(), b.Kind())) return Variant::Null();
  switch (RuleOf(kQuotientRules, a.Kind(), b.Kind())) {
    case WorkingType::Single: return FittingSingle(Quotient(a, b));
    case WorkingType::Decimal: return DecimalQuotient(ToDecimal(a), ToDecimal(b));
    default: return FiniteDouble(Quotient(a, b));
  }
}

Variant IntegerDivide(const Variant& a, const Variant& b) {
  return OnWhole(a, b, [](std::int64_t x, std::int64_t y) { return x / y; });
}

Variant Modulo(const Variant& a, const Variant& b) {
  return OnWhole(a, b, [](std::int64_t x, std::int64_t y) { return x % y; });
}

Variant Power(const Variant& left, const Variant& right) {
  const Operand a(left);
  const Operand b(right);
  if (HasNull(a.Kind(), b.Kind())) return Variant::Null();
  const double base = RealValue(a);
  const double exponent = RealValue(b);
  const double result = std::pow(base, exponent);
  if (std::isnan(result) || (base == 0 && exponent < 0)) Raise(ErrorNumber::InvalidCall);
  return FiniteDouble(result);
}

}  // namespace cardwright::vbscript
