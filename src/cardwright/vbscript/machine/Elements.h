// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/code/Procedure.h"
#include "cardwright/vbscript/machine/RegisterView.h"

/// Arrays: creating, indexing, changing the bounds.
namespace cardwright::vbscript {

Variant NewArray(const ArrayShape& shape);
/// The variable that R[a] refers to gets an array with the upper bounds in the n registers from R[b] on.
/// Errors: 10 for an array of fixed size or one being enumerated, 9 for impossible bounds, 7 for too many
/// elements.
void ReDimArray(RegisterView view, Instruction i, bool preserve);
/// A fixed array gets Empty elements, a dynamic one loses them. Error 13 for no array, 10 for one being
/// enumerated.
void EraseArray(Variant& holder);

/// The element that an element operation names by whole numbers within the bounds; null where it takes the
/// slow path.
inline Variant* FindElement(Array& array, RegisterView view, Instruction i, Instruction word) noexcept {
  const Variant& first = view.C(i);
  if (!first.IsWhole()) return nullptr;
  if (!(i.n & kTwoIndices)) return array.Find(first.Long());
  const Variant& second = view.Second(i, word);
  return second.IsWhole() ? array.Find(first.Long(), second.Long()) : nullptr;
}

/// The element at these indices, each converted to a whole number; error 9 where there is none.
const Variant& ElementAt(const Array& array, Args indices);
/// Likewise of an array that a variable holds; error 13 where it holds none.
Variant ElementOf(const Variant& holder, Args indices);
/// Its position in Values() of the array. Error 13 where the variable holds no array once the indices have
/// been converted.
std::size_t ElementPosition(const Variant& holder, Args indices);
/// Indexed assignment, `place(indices…) = value`, with the value last: to an element of the array that
/// `place` is or refers to, or through the default member of an object. Error 13 about `name` for anything
/// else.
void AssignElement(Variant& place, Args arguments, bool isSet, const Text& name);

}  // namespace cardwright::vbscript
