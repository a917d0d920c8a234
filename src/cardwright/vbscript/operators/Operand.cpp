// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/operators/Operand.h"

#include <cmath>
#include <limits>

#include "cardwright/automation/Calendar.h"
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"

namespace cardwright::vbscript {

namespace {

// A default value may be an object with a default value in turn. A longer chain is taken for a cycle.
constexpr int kMaxDefaults = 32;

template <class Whole>
bool Fits(std::int64_t value) noexcept {
  return value >= std::numeric_limits<Whole>::min() && value <= std::numeric_limits<Whole>::max();
}

}  // namespace

void Operand::TakeDefault() {
  for (int depth = 0; m_Value->IsObject(); ++depth) {
    if (depth == kMaxDefaults) Raise(ErrorNumber::NotSupported);
    const Variant value = DefaultValue(*m_Value);
    m_Held = value.Deref();
    m_Value = &m_Held;
  }
}

bool HasNull(OperandType left, OperandType right) {
  if (left == OperandType::Unsupported || right == OperandType::Unsupported) Raise(ErrorNumber::TypeMismatch);
  return left == OperandType::Null || right == OperandType::Null;
}

std::int32_t WholeValue(const Variant& value) noexcept {
  switch (value.Type()) {
    case VarType::Boolean: return value.Boolean() ? -1 : 0;
    case VarType::Byte: return value.Byte();
    case VarType::Integer: return value.Integer();
    case VarType::Long: return value.Long();
    default: return 0;
  }
}

double RealValue(const Variant& value) {
  switch (value.Type()) {
    case VarType::Empty:
    case VarType::Boolean:
    case VarType::Byte:
    case VarType::Integer:
    case VarType::Long: return WholeValue(value);
    case VarType::Single: return value.Single();
    case VarType::Double:
    case VarType::Date: return value.Double();
    default: return ToDouble(value);
  }
}

Variant FittingWhole(std::int64_t value, WorkingType type) noexcept {
  if (type == WorkingType::Byte && Fits<std::uint8_t>(value)) return static_cast<std::uint8_t>(value);
  if (type != WorkingType::Long && Fits<std::int16_t>(value)) return static_cast<std::int16_t>(value);
  if (Fits<std::int32_t>(value)) return static_cast<std::int32_t>(value);
  return static_cast<double>(value);
}

Variant FittingSingle(double value) {
  const auto single = static_cast<float>(value);
  return std::isfinite(single) ? Variant(single) : FiniteDouble(value);
}

Variant FiniteDouble(double value) {
  if (!std::isfinite(value)) Raise(ErrorNumber::Overflow);
  return value;
}

Variant FittingDate(double days) {
  if (IsDateRange(days)) return Date{days};
  return FiniteDouble(days);
}

}  // namespace cardwright::vbscript
