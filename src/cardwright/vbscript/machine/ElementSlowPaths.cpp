// SPDX-License-Identifier: MIT
#include <utility>

#include "cardwright/vbscript/machine/Elements.h"
#include "cardwright/vbscript/machine/Machine.h"

// The slow paths of the element operations: indices of other types, shared arrays, objects with a default
// member, errors.
namespace cardwright::vbscript {

namespace {

// The indices of an element operation, one or two, moved out of their registers.
struct TakenIndices {
  Variant values[3];  // room for the value of an assignment
  std::size_t count = 1;

  TakenIndices(RegisterView view, Instruction i, Instruction word) {
    values[0] = static_cast<const Variant&>(view.C(i)).Deref();
    if (i.n & kTwoIndices) {
      values[count++] = static_cast<const Variant&>(view.Second(i, word)).Deref();
      if (!(i.n & kConstantSecond)) view.ClearTemporary(word.a);
    }
    view.ClearTemporaryC(i);
  }
  /// Makes them the arguments of a call, from a register on.
  void MoveTo(Variant* arguments) {
    for (std::size_t k = 0; k < count; ++k) arguments[k] = std::move(values[k]);
  }
  /// The indices, and after them the value to assign, from register r.
  Args WithValue(RegisterView view, std::uint16_t r) {
    values[count] = static_cast<const Variant&>(view.R[r]).Deref();
    view.ClearTemporary(r);
    return {values, count + 1};
  }
};

// Tries the common case first: one dimension, a whole number as index.
std::size_t PositionOf(Variant& holder, Args indices) {
  const Variant& held = std::as_const(holder).Deref();
  if (held.IsArray() && indices.size() == 1 && indices[0].IsWhole()) {
    Array& array = *held.ArrayPtr();
    if (const Variant* element = array.Find(indices[0].Long()))
      return static_cast<std::size_t>(element - array.Values().data());
  }
  return ElementPosition(holder, indices);
}

}  // namespace

bool Machine::GetElementSlowly(RegisterView view, Instruction i, Instruction word,
                               const Procedure& procedure) {
  const Variant holder = static_cast<const Variant&>(view.R[i.b]).Deref();
  TakenIndices indices(view, i, word);
  indices.MoveTo(view.R + i.a);
  return CallValue(holder, view.R + i.a, indices.count, view.R + i.a, LocalName(procedure, i.b));
}

void Machine::SetElementSlowly(RegisterView view, Instruction i, Instruction word,
                               const Procedure& procedure) {
  TakenIndices indices(view, i, word);
  const Args arguments = indices.WithValue(view, i.a);
  AssignElement(view.R[i.b], arguments, false, LocalName(procedure, i.b));
}

bool Machine::GetSymbolElementSlowly(RegisterView view, Instruction i, Instruction word, SymbolUse& use) {
  TakenIndices indices(view, i, word);
  indices.MoveTo(view.R + i.a);
  return CallSymbol(use, view.R + i.a, indices.count, 0);
}

void Machine::SetSymbolElementSlowly(RegisterView view, Instruction i, Instruction word, SymbolUse& use) {
  TakenIndices indices(view, i, word);
  AssignIndexedSymbol(use, indices.WithValue(view, i.a), 0);
}

bool Machine::GetFieldElementSlowly(RegisterView view, Instruction i, Instruction word,
                                    const Variant& field) {
  const Variant holder = field;
  TakenIndices indices(view, i, word);
  indices.MoveTo(view.R + i.a);
  return CallValue(holder, view.R + i.a, indices.count, view.R + i.a, {});
}

void Machine::SetFieldElementSlowly(RegisterView view, Instruction i, Instruction word, Variant& field) {
  TakenIndices indices(view, i, word);
  AssignElement(field, indices.WithValue(view, i.a), false, {});
}

bool Machine::ReferToElement(RegisterView view, Instruction i) {
  Variant& reference = view.R[i.b];
  const Args indices(view.R + i.a, i.n);
  const Variant& holder = static_cast<const Variant&>(reference).Deref();
  if (!holder.IsArray() || !reference.IsByRef()) {
    const Variant callee = holder;
    view.ClearTemporary(i.b);
    return CallValue(callee, indices.data(), indices.size(), indices.data(), {});
  }
  const std::size_t position = PositionOf(reference, indices);
  for (Variant& index : indices) index.Reset();
  if (reference.Type() == VarType::ByRefElement) {
    indices[0] = Variant::ByRefElement(reference, static_cast<std::uint32_t>(position));
    return false;
  }
  indices[0] = Variant::ByRefElement(reference.Deref(), static_cast<std::uint32_t>(position));
  view.ClearTemporary(i.b);
  return false;
}

bool Machine::ReferToSymbolElement(RegisterView view, Instruction i, SymbolUse& use) {
  if (use.epoch != m_Epoch) Resolve(use);
  const Args indices(view.R + i.a, i.n);
  Variant* holder = use.variable;
  if (!use.symbol && use.local != kNoRegister) holder = &Current().registers[use.local].Deref();
  if (!holder || !holder->IsArray()) return CallSymbol(use, indices.data(), indices.size(), 0);
  const std::size_t position = PositionOf(*holder, indices);
  for (Variant& index : indices) index.Reset();
  indices[0] = Variant::ByRefElement(*holder, static_cast<std::uint32_t>(position));
  return false;
}

}  // namespace cardwright::vbscript
