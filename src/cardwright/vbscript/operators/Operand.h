#pragma once

#include "cardwright/automation/Variant.h"
#include "cardwright/vbscript/operators/TypeRules.h"

namespace cardwright::vbscript {

/// An operand as an operator works on it: references followed, an object replaced by its default value.
/// Errors 91 and 438 for an object that has none. Refers to the Variant it is made from.
class Operand {
 public:
  explicit Operand(const Variant& value) : m_Value(&value.Deref()) {
    if (m_Value->IsObject()) TakeDefault();
  }
  Operand(const Operand&) = delete;
  Operand& operator=(const Operand&) = delete;

  const Variant& Value() const noexcept { return *m_Value; }
  operator const Variant&() const noexcept { return *m_Value; }
  Side Kind() const noexcept { return SideOf(m_Value->Type()); }

 private:
  void TakeDefault();

  const Variant* m_Value;
  Variant m_Held;  // the default value of an object
};

/// Raises error 13 for an operand that no operator takes; otherwise tells whether one of the two is Null.
bool HasNull(Side left, Side right);

/// @name Operands as numbers
/// @{
/// Empty, Boolean, Byte, Integer or Long.
std::int32_t WholeValue(const Variant& value) noexcept;
/// Any number; error 13 for a text that is none.
double RealValue(const Variant& value);
/// @}

/// @name Results
/// @{
/// A whole number in the type asked for, or in the next larger one that holds it.
Variant FittingWhole(std::int64_t value, Working type) noexcept;
/// As a Single, or as a Double where a Single cannot hold it; error 6 beyond both.
Variant FittingSingle(double value);
/// Error 6 for what is no finite number.
Variant FiniteDouble(double value);
/// As a Date, or as a Double where the calendar has no such day.
Variant FittingDate(double days);
/// @}

}  // namespace cardwright::vbscript
