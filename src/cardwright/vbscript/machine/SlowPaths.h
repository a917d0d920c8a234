// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/vbscript/machine/RegisterView.h"
#include "cardwright/vbscript/operators/Operators.h"

/// What the interpreter does where its quick paths do not apply. All of these functions clear the temporaries
/// that they read.
namespace cardwright::vbscript {

class Context;

void ApplyBinary(RegisterView view, Instruction i, Variant (*operation)(const Variant&, const Variant&));
void ApplyBinary(RegisterView view, Instruction i, BinaryOperator op);
/// `+`, which joins two texts. Error 14 where they are too long.
void ApplyAdd(const Context& context, RegisterView view, Instruction i);
void ApplyUnary(RegisterView view, Instruction i, Variant (*operation)(const Variant&));
Ordering CompareOperands(RegisterView view, Instruction i);
bool IsTrueOperand(RegisterView view, std::uint16_t r);

/// Copies the value that `from` is or refers to.
inline void CopyValue(Variant& to, const Variant& from) { to = from.Deref(); }
/// The slow path of AssignPlain.
void AssignValue(Variant& to, Variant& from, bool isTemporary);
/// Assignment without Set: an object gives its default value, an array a copy of itself. `isTemporary` says
/// that `from` is a temporary, whose value may be moved.
inline void AssignPlain(Variant& to, Variant& from, bool isTemporary) {
  if (to.IsInPlace() && from.IsInPlace()) {
    to = from;
  } else {
    AssignValue(to, from, isTemporary);
  }
}
/// Likewise to the variable that `place` is or refers to. A default property may change where `place` refers
/// to, so it is followed after the value is known.
void AssignPlainThrough(Variant& place, Variant& from, bool isTemporary);
/// Assignment with Set. Error 424 where `from` is no object.
void AssignObject(Variant& to, Variant& from, bool isTemporary);
/// R[a] = the object R[b]. Error 424 where it is none.
void TakeObject(RegisterView view, Instruction i);

/// Appends to the text that `place` is or refers to, in place where nobody shares the text.
void AppendText(const Context& context, Variant& place, const Variant& tail);
void AppendText(const Context& context, Variant& place, RegisterView view, std::uint16_t r);
void ConcatenateOperands(const Context& context, RegisterView view, Instruction i);

}  // namespace cardwright::vbscript
