#pragma once

#include "vbscript/machine/RegisterView.h"
#include "vbscript/operators/Operators.h"

/// What the interpreter does where its quick paths do not apply. All of them spend the values on the way that
/// they use.
namespace cardwright::vbscript {

class Context;

void ApplyBinary(RegisterView view, Instruction i, Variant (*operation)(const Variant&, const Variant&));
void ApplyBinary(RegisterView view, Instruction i, BinaryOperator op);
void ApplyUnary(RegisterView view, Instruction i, Variant (*operation)(const Variant&));
Ordering CompareOperands(RegisterView view, Instruction i);
bool IsTrueOperand(RegisterView view, std::uint16_t r);

/// What `from` is or refers to.
void CopyValue(Variant& to, const Variant& from);
/// Assignment without Set: an object gives its default value, an array its values. `spend` moves out of
/// `from`.
void AssignPlain(Variant& to, Variant& from, bool spend);
/// Assignment with Set: error 424 where `from` is no object.
void AssignObject(Variant& to, Variant& from, bool spend);
/// R[a] = the object in R[b]; error 424 where it is none.
void TakeObject(RegisterView view, Instruction i);

/// `target = target & tail`, in place where nobody shares the text.
void AppendText(const Context& context, Variant& target, const Variant& tail);
void AppendText(const Context& context, Variant& target, RegisterView view, std::uint16_t r);
void ConcatenateOperands(const Context& context, RegisterView view, Instruction i);

}  // namespace cardwright::vbscript
