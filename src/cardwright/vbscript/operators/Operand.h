// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Variant.h"
#include "cardwright/vbscript/operators/TypeRules.h"

namespace cardwright::vbscript {

/// An operand, dereferenced, and with an object replaced by its default value: errors 91 and 438 for an
/// object without one. Refers to the Variant that it is made from.
class Operand {
 public:
  explicit Operand(const Variant& value) : m_Value(&value.Deref()) {
    if (m_Value->IsObject()) TakeDefault();
  }
  Operand(const Operand&) = delete;
  Operand& operator=(const Operand&) = delete;

  const Variant& Value() const noexcept { return *m_Value; }
  operator const Variant&() const noexcept { return *m_Value; }
  OperandType Kind() const noexcept { return OperandTypeOf(m_Value->Type()); }

 private:
  void TakeDefault();

  const Variant* m_Value;
  Variant m_Held;  // the default value of an object
};

/// Whether one of the two is Null; error 13 for an unsupported operand.
bool HasNull(OperandType left, OperandType right);

/// @name Operands as numbers
/// @{
/// Empty, Boolean, Byte, Integer or Long.
std::int32_t WholeValue(const Variant& value) noexcept;
/// Any number; error 13 for a text that is none.
double RealValue(const Variant& value);
/// @}

/// @name Results
/// @{
/// A whole number in the given type, or in the next larger one that holds it.
Variant FittingWhole(std::int64_t value, WorkingType type) noexcept;
/// As a Single, or as a Double where a Single cannot hold it; error 6 beyond both.
Variant FittingSingle(double value);
/// Error 6 for infinity and NaN.
Variant FiniteDouble(double value);
/// As a Date, or as a Double where the calendar has no such day.
Variant FittingDate(double days);
/// @}

}  // namespace cardwright::vbscript
