// SPDX-License-Identifier: MIT
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/operators/DecimalMath.h"
#include "cardwright/vbscript/operators/Operand.h"
#include "cardwright/vbscript/operators/Operators.h"

namespace cardwright::vbscript {

namespace {

__extension__ using Wide = __int128;

constexpr int kTenThousand = 10000;

// What differs between the three operators: the table, and the operation on two values of one type.
struct Sum {
  static constexpr const RuleTable& kRules = kSumRules;
  template <class T>
  static T Of(T a, T b) noexcept {
    return a + b;
  }
  static bool Overflows(std::int64_t a, std::int64_t b, std::int64_t& result) noexcept {
    return __builtin_add_overflow(a, b, &result);
  }
  static Decimal Of(const Decimal& a, const Decimal& b) { return AddDecimals(a, b); }
};

struct Difference {
  static constexpr const RuleTable& kRules = kDifferenceRules;
  template <class T>
  static T Of(T a, T b) noexcept {
    return a - b;
  }
  static bool Overflows(std::int64_t a, std::int64_t b, std::int64_t& result) noexcept {
    return __builtin_sub_overflow(a, b, &result);
  }
  static Decimal Of(const Decimal& a, Decimal b) {
    b.negative = !b.negative;
    return AddDecimals(a, b);
  }
};

struct Product {
  static constexpr const RuleTable& kRules = kProductRules;
  template <class T>
  static T Of(T a, T b) noexcept {
    return a * b;
  }
  // Both count ten-thousandths, so their product has four decimals too many; they are rounded off half to
  // even.
  static bool Overflows(std::int64_t a, std::int64_t b, std::int64_t& result) noexcept {
    const Wide product = Wide{a} * b;
    Wide rounded = product / kTenThousand;
    const auto rest = static_cast<int>(product % kTenThousand);
    const int twice = 2 * (rest < 0 ? -rest : rest);
    if (twice > kTenThousand || (twice == kTenThousand && rounded % 2 != 0)) rounded += product < 0 ? -1 : 1;
    result = static_cast<std::int64_t>(rounded);
    return rounded != result;
  }
  static Decimal Of(const Decimal& a, const Decimal& b) { return MultiplyDecimals(a, b); }
};

template <class Operator>
Variant OfCurrencies(const Variant& a, const Variant& b) {
  std::int64_t result = 0;
  if (Operator::Overflows(ToCurrency(a).tenThousandths, ToCurrency(b).tenThousandths, result)) {
    Raise(ErrorNumber::Overflow);
  }
  return Currency{result};
}

template <class Operator>
Variant Calculate(const Variant& left, const Variant& right) {
  const Operand a(left);
  const Operand b(right);
  if (HasNull(a.Kind(), b.Kind())) return Variant::Null();
  const WorkingType type = RuleOf(Operator::kRules, a.Kind(), b.Kind());
  switch (type) {
    case WorkingType::Boolean:
    case WorkingType::Byte:
    case WorkingType::Integer:
    case WorkingType::Long:
      return FittingWhole(Operator::template Of<std::int64_t>(WholeValue(a), WholeValue(b)), type);
    case WorkingType::Single: return FittingSingle(Operator::Of(RealValue(a), RealValue(b)));
    case WorkingType::Double: return FiniteDouble(Operator::Of(RealValue(a), RealValue(b)));
    case WorkingType::Currency: return OfCurrencies<Operator>(a, b);
    case WorkingType::Date: return FittingDate(Operator::Of(RealValue(a), RealValue(b)));
    case WorkingType::Decimal: return Operator::Of(ToDecimal(a), ToDecimal(b));
    case WorkingType::Text: return Concatenate(a, b);
  }
  return {};
}

Currency Negated(Currency value) {
  std::int64_t result = 0;
  if (__builtin_sub_overflow(std::int64_t{0}, value.tenThousandths, &result)) Raise(ErrorNumber::Overflow);
  return {result};
}

Decimal Negated(Decimal value) noexcept {
  value.negative = !value.negative && (value.low != 0 || value.high != 0);
  return value;
}

}  // namespace

Variant Add(const Variant& a, const Variant& b) { return Calculate<Sum>(a, b); }
Variant Subtract(const Variant& a, const Variant& b) { return Calculate<Difference>(a, b); }
Variant Multiply(const Variant& a, const Variant& b) { return Calculate<Product>(a, b); }

Variant Negate(const Variant& value) {
  const Operand a(value);
  switch (a.Kind()) {
    case OperandType::Empty:
    case OperandType::Boolean:
    case OperandType::Byte:
    case OperandType::Integer: return FittingWhole(-std::int64_t{WholeValue(a)}, WorkingType::Integer);
    case OperandType::Long: return FittingWhole(-std::int64_t{WholeValue(a)}, WorkingType::Long);
    case OperandType::Single: return -a.Value().Single();
    case OperandType::Double:
    case OperandType::Text: return -RealValue(a);
    case OperandType::Currency: return Negated(a.Value().CurrencyValue());
    case OperandType::Date: return FittingDate(-RealValue(a));
    case OperandType::Decimal: return Negated(a.Value().DecimalValue());
    case OperandType::Null: return Variant::Null();
    case OperandType::Unsupported: Raise(ErrorNumber::TypeMismatch);
  }
  return {};
}

// Plus does not convert: a string stays a string.
Variant UnaryPlus(const Variant& value) {
  const Operand a(value);
  if (a.Kind() == OperandType::Unsupported) Raise(ErrorNumber::TypeMismatch);
  return a.Value();
}

}  // namespace cardwright::vbscript
