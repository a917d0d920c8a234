#include <utility>

#include "cardwright/vbscript/machine/Elements.h"
#include "cardwright/vbscript/machine/Machine.h"

// The long ways of the element operations: other index types, shared arrays, objects with a default member,
// errors.
namespace cardwright::vbscript {

namespace {

// The indices of an element operation, at most two, taken out of their registers.
struct Indices {
  Variant values[3];  // room for the value of an assignment
  std::size_t count = 1;

  /// Of GetElement and SetElement: the second index is in the word after.
  Indices(RegisterView view, Instruction i, Instruction word, bool isElement2) {
    values[0] = static_cast<const Variant&>(view.C(i)).Deref();
    if (isElement2) {
      const bool constant = (i.n & kConstantSecond) != 0;
      values[count++] = constant ? view.K[word.a] : static_cast<const Variant&>(view.R[word.a]).Deref();
      if (!constant) view.Spend(word.a);
    }
    view.SpendC(i);
  }
  /// Of the operations on symbols and fields: it is operand b.
  Indices(RegisterView view, Instruction i) {
    values[0] = static_cast<const Variant&>(view.C(i)).Deref();
    if (i.n & kTwoIndices) {
      values[count++] = static_cast<const Variant&>(view.B(i)).Deref();
      view.SpendB(i);
    }
    view.SpendC(i);
  }
  /// Places them as arguments from a register on.
  void Place(Variant* arguments) {
    for (std::size_t k = 0; k < count; ++k) arguments[k] = std::move(values[k]);
  }
  /// With the value to assign behind them.
  Args With(RegisterView view, std::uint16_t r) {
    values[count] = static_cast<const Variant&>(view.R[r]).Deref();
    view.Spend(r);
    return {values, count + 1};
  }
};

// Most arrays have one dimension, most indices are whole.
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
  Indices indices(view, i, word, i.op == Op::GetElement2);
  indices.Place(view.R + i.a);
  return CallValue(holder, view.R + i.a, indices.count, view.R + i.a, LocalName(procedure, i.b));
}

void Machine::SetElementSlowly(RegisterView view, Instruction i, Instruction word,
                               const Procedure& procedure) {
  Indices indices(view, i, word, i.op == Op::SetElement2);
  const Args arguments = indices.With(view, i.a);
  PutElement(view.R[i.b], arguments, false, LocalName(procedure, i.b));
}

bool Machine::GetSymbolElementSlowly(RegisterView view, Instruction i, SymbolUse& use) {
  Indices indices(view, i);
  indices.Place(view.R + i.a);
  return CallSymbol(use, view.R + i.a, indices.count, 0);
}

void Machine::SetSymbolElementSlowly(RegisterView view, Instruction i, SymbolUse& use) {
  Indices indices(view, i);
  PutSymbol(use, indices.With(view, i.a), 0);
}

bool Machine::GetFieldElementSlowly(RegisterView view, Instruction i, const Variant& holder) {
  const Variant held = holder;
  Indices indices(view, i);
  indices.Place(view.R + i.a);
  return CallValue(held, view.R + i.a, indices.count, view.R + i.a, {});
}

void Machine::SetFieldElementSlowly(RegisterView view, Instruction i, Variant& holder) {
  Indices indices(view, i);
  PutElement(holder, indices.With(view, i.a), false, {});
}

bool Machine::ReferToElement(RegisterView view, Instruction i) {
  Variant& reference = view.R[i.b];
  const Args indices(view.R + i.a, i.n);
  const Variant& holder = static_cast<const Variant&>(reference).Deref();
  if (!holder.IsArray() || !reference.IsByRef()) {
    const Variant callee = holder;
    view.Spend(i.b);
    return CallValue(callee, indices.data(), indices.size(), indices.data(), {});
  }
  const std::size_t position = PositionOf(reference, indices);
  for (Variant& index : indices) index.Reset();
  if (reference.Type() == VarType::ByRefElement) {
    indices[0] = Variant::ByRefElement(reference, static_cast<std::uint32_t>(position));
    return false;
  }
  indices[0] = Variant::ByRefElement(reference.Deref(), static_cast<std::uint32_t>(position));
  view.Spend(i.b);
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
