// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/Loops.h"

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/operators/Operators.h"

namespace cardwright::vbscript {

namespace {

Variant NumberOf(const Variant& value) {
  const Variant& held = value.Deref();
  switch (held.Type()) {
    case VarType::Object: return NumberOf(DefaultValue(held));
    case VarType::String: return Variant(ToDouble(held));
    case VarType::Empty: return Variant(std::int16_t{0});
    case VarType::Boolean: return Variant(ToInteger(held));
    case VarType::Null: Raise(ErrorNumber::InvalidUseOfNull);
    case VarType::Array:
    case VarType::Error: Raise(ErrorNumber::TypeMismatch);
    default: return held;
  }
}

bool IsDone(const Variant& variable, const Variant& limit, const Variant& step) {
  const bool goesDown = Compare(step, Variant(std::int16_t{0})) == Ordering::Less;
  return Compare(variable, limit) == (goesDown ? Ordering::Less : Ordering::Greater);
}

}  // namespace

bool PrepareFor(Variant& variable, Variant* bounds) {
  // Whichever conversion fails, the limit is Empty then: by that Next recognises a loop that was not
  // prepared.
  const Variant given = std::move(bounds[1]);
  Variant first = NumberOf(bounds[0]);
  Variant limit = NumberOf(given);
  Variant step = NumberOf(bounds[2]);
  const bool runs = !IsDone(first, limit, step);
  bounds[0].Reset();
  bounds[1] = std::move(limit);
  bounds[2] = std::move(step);
  variable.Deref() = std::move(first);
  return runs;
}

bool AdvanceFor(Variant& variable, const Variant& limit, const Variant& step) {
  if (limit.IsEmpty()) Raise(ErrorNumber::ForLoopNotInitialized);
  Variant next = Add(NumberOf(variable), step);
  const bool runs = !IsDone(next, limit, step);
  variable.Deref() = std::move(next);
  return runs;
}

}  // namespace cardwright::vbscript
