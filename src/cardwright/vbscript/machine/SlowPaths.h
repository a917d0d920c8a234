#pragma once

#include "cardwright/vbscript/machine/RegisterView.h"
#include "cardwright/vbscript/operators/Operators.h"

/// What the interpreter does where its quick paths do not apply. All of them isTemporary the values on the
/// way that they use.
namespace cardwright::vbscript {

class Context;

void ApplyBinary(RegisterView view, Instruction i, Variant (*operation)(const Variant&, const Variant&));
void ApplyBinary(RegisterView view, Instruction i, BinaryOperator op);
/// `+`, which joins two texts. Error 14 where they are too long.
void ApplyAdd(const Context& context, RegisterView view, Instruction i);
void ApplyUnary(RegisterView view, Instruction i, Variant (*operation)(const Variant&));
Ordering CompareOperands(RegisterView view, Instruction i);
bool IsTrueOperand(RegisterView view, std::uint16_t r);

/// What `from` is or refers to.
inline void CopyValue(Variant& to, const Variant& from) { to = from.Deref(); }
/// The long way of AssignPlain.
void AssignValue(Variant& to, Variant& from, bool isTemporary);
/// Assignment without Set: an object gives its default value, an array its values. `isTemporary` moves out of
/// `from`.
inline void AssignPlain(Variant& to, Variant& from, bool isTemporary) {
  if (to.IsInPlace() && from.IsInPlace()) {
    to = from;
  } else {
    AssignValue(to, from, isTemporary);
  }
}
/// Likewise to what `place` is or refers to, which the object's default property may move: it is looked up
/// when the value is there.
void AssignPlainThrough(Variant& place, Variant& from, bool isTemporary);
/// Assignment with Set: error 424 where `from` is no object.
void AssignObject(Variant& to, Variant& from, bool isTemporary);
/// R[a] = the object in R[b]; error 424 where it is none.
void TakeObject(RegisterView view, Instruction i);

/// Adds to the text that `place` is or refers to, in place where nobody shares it.
void AppendText(const Context& context, Variant& place, const Variant& tail);
void AppendText(const Context& context, Variant& place, RegisterView view, std::uint16_t r);
void ConcatenateOperands(const Context& context, RegisterView view, Instruction i);

}  // namespace cardwright::vbscript
