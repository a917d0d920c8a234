// SPDX-License-Identifier: MIT
#include <cmath>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/operators/DecimalMath.h"
#include "cardwright/vbscript/operators/Operand.h"
#include "cardwright/vbscript/operators/Operators.h"

namespace cardwright::vbscript {

namespace {

template <class T>
Ordering OrderOf(const T& a, const T& b) noexcept {
  if (a < b) return Ordering::Less;
  return b < a ? Ordering::Greater : Ordering::Equal;
}

Ordering OrderOfTexts(std::u16string_view a, std::u16string_view b) noexcept {
  return OrderOf(a.compare(b), 0);
}

Ordering Reversed(Ordering order) noexcept {
  switch (order) {
    case Ordering::Less: return Ordering::Greater;
    case Ordering::Greater: return Ordering::Less;
    default: return order;
  }
}

bool IsWhole(OperandType side) noexcept { return side <= OperandType::Long; }

// Whether a value can be turned into an exact type that holds numbers up to the limit.
bool IsWithin(const Operand& value, OperandType exact, double limit) {
  return value.Kind() == exact || std::fabs(RealValue(value)) < limit;
}

// A number is compared with a Currency in four decimals, unless a Currency cannot hold it.
Ordering OrderOfCurrencies(const Operand& a, const Operand& b) {
  constexpr double kLimit = 922337203685477;
  const bool isExact =
      IsWithin(a, OperandType::Currency, kLimit) && IsWithin(b, OperandType::Currency, kLimit);
  if (!isExact) return OrderOf(RealValue(a), RealValue(b));
  return OrderOf(ToCurrency(a).tenThousandths, ToCurrency(b).tenThousandths);
}

Ordering OrderOfDecimals(const Operand& a, const Operand& b) {
  constexpr double kLimit = 7.9e28;
  const bool isExact = IsWithin(a, OperandType::Decimal, kLimit) && IsWithin(b, OperandType::Decimal, kLimit);
  if (!isExact) return OrderOf(RealValue(a), RealValue(b));
  return CompareDecimals(ToDecimal(a), ToDecimal(b));
}

// A Double is rounded to a Single before it is compared with one, so that 0.1 equals CSng(0.1).
bool ComparesAsSingle(OperandType a, OperandType b) noexcept {
  return (a == OperandType::Single && b == OperandType::Double) ||
         (a == OperandType::Double && b == OperandType::Single);
}

Ordering OrderOfNumbers(const Operand& a, const Operand& b) {
  const OperandType left = a.Kind();
  const OperandType right = b.Kind();
  if (IsWhole(left) && IsWhole(right)) return OrderOf(WholeValue(a), WholeValue(b));
  if (left == OperandType::Decimal || right == OperandType::Decimal) return OrderOfDecimals(a, b);
  if (left == OperandType::Currency || right == OperandType::Currency) return OrderOfCurrencies(a, b);
  if (ComparesAsSingle(left, right)) {
    return OrderOf(static_cast<float>(RealValue(a)), static_cast<float>(RealValue(b)));
  }
  return OrderOf(RealValue(a), RealValue(b));
}

/// A string against a number. Between two variables the number is always less. A numeric literal converts the
/// string to a number (error 13 where it is none), a string literal converts the number to a string. Booleans
/// have no literals in this sense: `"True" = True` compares strings only because the string is a literal.
Ordering OrderOfTextAndNumber(const Operand& text, const Operand& number, bool textIsLiteral,
                              bool numberIsLiteral) {
  if (number.Kind() == OperandType::Empty) return OrderOfTexts(text.Value().StringView(), {});
  if (numberIsLiteral && number.Kind() == OperandType::Date)
    return OrderOf(ToDate(text).days, RealValue(number));
  if (numberIsLiteral && number.Kind() != OperandType::Boolean)
    return OrderOf(RealValue(text), RealValue(number));
  if (textIsLiteral) return OrderOfTexts(text.Value().StringView(), ToText(number));
  return Ordering::Greater;
}

Variant Answer(Ordering order, BinaryOperator op) noexcept {
  if (order == Ordering::Unknown) return Variant::Null();
  switch (op) {
    case BinaryOperator::Equal: return order == Ordering::Equal;
    case BinaryOperator::NotEqual: return order != Ordering::Equal;
    case BinaryOperator::Less: return order == Ordering::Less;
    case BinaryOperator::LessOrEqual: return order != Ordering::Greater;
    case BinaryOperator::Greater: return order == Ordering::Greater;
    default: return order != Ordering::Less;
  }
}

}  // namespace

Ordering Compare(const Variant& left, const Variant& right, LiteralSide literals) {
  const Operand a(left);
  const Operand b(right);
  if (HasNull(a.Kind(), b.Kind())) return Ordering::Unknown;
  const bool leftIsText = a.Kind() == OperandType::Text;
  const bool rightIsText = b.Kind() == OperandType::Text;
  if (leftIsText && rightIsText) return OrderOfTexts(a.Value().StringView(), b.Value().StringView());
  if (!leftIsText && !rightIsText) return OrderOfNumbers(a, b);
  const bool leftIsLiteral = literals == LiteralSide::Left || literals == LiteralSide::Both;
  const bool rightIsLiteral = literals == LiteralSide::Right || literals == LiteralSide::Both;
  if (leftIsText) return OrderOfTextAndNumber(a, b, leftIsLiteral, rightIsLiteral);
  return Reversed(OrderOfTextAndNumber(b, a, rightIsLiteral, leftIsLiteral));
}

bool IsSameObject(const Variant& a, const Variant& b) {
  const Variant& left = a.Deref();
  const Variant& right = b.Deref();
  if (!left.IsObject() || !right.IsObject()) Raise(ErrorNumber::ObjectRequired);
  return left.ObjectPtr() == right.ObjectPtr();
}

Variant Apply(BinaryOperator op, const Variant& a, const Variant& b, LiteralSide literals) {
  switch (op) {
    case BinaryOperator::Power: return Power(a, b);
    case BinaryOperator::Multiply: return Multiply(a, b);
    case BinaryOperator::Divide: return Divide(a, b);
    case BinaryOperator::IntegerDivide: return IntegerDivide(a, b);
    case BinaryOperator::Modulo: return Modulo(a, b);
    case BinaryOperator::Add: return Add(a, b);
    case BinaryOperator::Subtract: return Subtract(a, b);
    case BinaryOperator::Concatenate: return Concatenate(a, b);
    case BinaryOperator::Equal:
    case BinaryOperator::NotEqual:
    case BinaryOperator::Less:
    case BinaryOperator::LessOrEqual:
    case BinaryOperator::Greater:
    case BinaryOperator::GreaterOrEqual: return Answer(Compare(a, b, literals), op);
    case BinaryOperator::Is: return IsSameObject(a, b);
    case BinaryOperator::And: return And(a, b);
    case BinaryOperator::Or: return Or(a, b);
    case BinaryOperator::Xor: return Xor(a, b);
    case BinaryOperator::Eqv: return Eqv(a, b);
    case BinaryOperator::Imp: return Imp(a, b);
  }
  return {};
}

}  // namespace cardwright::vbscript
