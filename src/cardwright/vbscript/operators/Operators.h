// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Variant.h"
#include "cardwright/vbscript/syntax/Ast.h"

/// The operators on values of any type: promotion, overflow, Null, text, dates and objects' default values,
/// as the language has them. References are dereferenced. Errors: 6 overflow, 11 division by zero, 13 type
/// mismatch, 438 for an object without a default value, 91 for Nothing.
namespace cardwright::vbscript {

Variant Add(const Variant& a, const Variant& b);
Variant Subtract(const Variant& a, const Variant& b);
Variant Multiply(const Variant& a, const Variant& b);
Variant Divide(const Variant& a, const Variant& b);
Variant IntegerDivide(const Variant& a, const Variant& b);
Variant Modulo(const Variant& a, const Variant& b);
Variant Power(const Variant& a, const Variant& b);
Variant Concatenate(const Variant& a, const Variant& b);
Variant Negate(const Variant& a);
Variant UnaryPlus(const Variant& a);

Variant Not(const Variant& a);
Variant And(const Variant& a, const Variant& b);
Variant Or(const Variant& a, const Variant& b);
Variant Xor(const Variant& a, const Variant& b);
Variant Eqv(const Variant& a, const Variant& b);
Variant Imp(const Variant& a, const Variant& b);

/// Outcome of a comparison; Unknown where a side is Null.
enum class Ordering : std::uint8_t { Less, Equal, Greater, Unknown };
/// Which operands are literals. A literal converts the other operand to its type, where two variables of
/// different types are just unequal.
enum class LiteralSide : std::uint8_t { None, Left, Right, Both };
Ordering Compare(const Variant& a, const Variant& b, LiteralSide literals = LiteralSide::None);
/// `Is`: error 424 where a side is no object.
bool IsSameObject(const Variant& a, const Variant& b);

/// A condition of If, While and the like: Null is false; error 13 for a value without a truth value.
bool IsTrue(const Variant& value);

/// Applies the operator of a syntax tree; `Equal` to `GreaterOrEqual` return a Boolean or Null.
Variant Apply(BinaryOperator op, const Variant& a, const Variant& b,
              LiteralSide literals = LiteralSide::None);

}  // namespace cardwright::vbscript
