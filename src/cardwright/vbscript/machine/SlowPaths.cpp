// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/SlowPaths.h"

#include <algorithm>
#include <charconv>

#include "cardwright/automation/Array.h"
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/Context.h"

namespace cardwright::vbscript {

namespace {

LiteralSide Literals(std::uint8_t n) noexcept {
  constexpr LiteralSide kSides[] = {LiteralSide::None, LiteralSide::Right, LiteralSide::Left,
                                    LiteralSide::Both};
  return kSides[n & (kConstantB | kConstantC)];
}

void StoreResult(RegisterView view, Instruction i, Variant outcome) {
  view.ClearTemporaryB(i);
  view.ClearTemporaryC(i);
  view.R[i.a] = std::move(outcome);
}

// A whole number as characters on the stack, without allocating a text.
class WholeNumberText {
 public:
  explicit WholeNumberText(std::int32_t value) noexcept {
    char narrow[12];
    const char* end = std::to_chars(narrow, narrow + sizeof narrow, value).ptr;
    for (const char* c = narrow; c != end; ++c) m_Units[m_Count++] = static_cast<char16_t>(*c);
  }
  std::u16string_view View() const noexcept { return {m_Units, m_Count}; }

 private:
  char16_t m_Units[12];
  std::size_t m_Count = 0;
};

// The operands of an instruction. The default property of an object may change the very variables that the
// operator reads, so where an operand is an object the operator works on copies.
class Operands {
 public:
  Operands(RegisterView view, Instruction i) : m_Left(&view.B(i)), m_Right(&view.C(i)) {
    if (!m_Left->Deref().IsObject() && !m_Right->Deref().IsObject()) return;
    m_Copies[0] = m_Left->Deref();
    m_Copies[1] = m_Right->Deref();
    m_Left = &m_Copies[0];
    m_Right = &m_Copies[1];
  }
  Operands(const Operands&) = delete;
  Operands& operator=(const Operands&) = delete;

  const Variant& Left() const noexcept { return *m_Left; }
  const Variant& Right() const noexcept { return *m_Right; }

 private:
  const Variant* m_Left;
  const Variant* m_Right;
  Variant m_Copies[2];
};

Text TextOf(const Variant& value) { return value.Deref().IsNull() ? Text() : ToText(value); }

void Extend(const Context& context, Variant& target, std::u16string_view tail) {
  context.CheckTextSize(target.StringView().size() + tail.size());
  target.Append(tail);
}

}  // namespace

void ApplyBinary(RegisterView view, Instruction i, Variant (*operation)(const Variant&, const Variant&)) {
  const Operands operands(view, i);
  StoreResult(view, i, operation(operands.Left(), operands.Right()));
}

void ApplyAdd(const Context& context, RegisterView view, Instruction i) {
  const Operands operands(view, i);
  const Variant& left = operands.Left().Deref();
  const Variant& right = operands.Right().Deref();
  if (left.IsString() && right.IsString())
    context.CheckTextSize(left.StringView().size() + right.StringView().size());
  StoreResult(view, i, Add(left, right));
}

void ApplyBinary(RegisterView view, Instruction i, BinaryOperator op) {
  const Operands operands(view, i);
  if (operands.Left().IsString()) Context::ChargeWork(operands.Left().StringView().size());
  StoreResult(view, i, Apply(op, operands.Left(), operands.Right(), Literals(i.n)));
}

void ApplyUnary(RegisterView view, Instruction i, Variant (*operation)(const Variant&)) {
  Variant outcome = operation(view.R[i.b]);
  view.ClearTemporary(i.b);
  view.R[i.a] = std::move(outcome);
}

Ordering CompareOperands(RegisterView view, Instruction i) {
  const Variant& x = view.B(i);
  const Variant& y = view.C(i);
  Ordering order;
  if (x.IsString() && y.IsString()) {
    Context::ChargeWork(std::min(x.StringView().size(), y.StringView().size()));
    const int sign = x.StringView().compare(y.StringView());
    order = sign < 0 ? Ordering::Less : sign > 0 ? Ordering::Greater : Ordering::Equal;
  } else {
    const Operands operands(view, i);
    order = Compare(operands.Left(), operands.Right(), Literals(i.n));
  }
  view.ClearTemporaryB(i);
  view.ClearTemporaryC(i);
  return order;
}

bool IsTrueOperand(RegisterView view, std::uint16_t r) {
  const bool holds = IsTrue(view.R[r]);
  view.ClearTemporary(r);
  return holds;
}

void AssignValue(Variant& to, Variant& from, bool isTemporary) {
  const Variant& value = static_cast<const Variant&>(from).Deref();
  if (value.IsObject()) {
    Variant plain = DefaultValue(value);
    if (isTemporary) from.Reset();
    to = std::move(plain);
  } else if (value.IsArray() && value.ArrayPtr()->IsFixed()) {
    Context::ChargeWork(value.ArrayPtr()->Values().size());
    to = Variant(value.ArrayPtr()->Copy());  // the copy is a dynamic array
    if (isTemporary) from.Reset();
  } else if (isTemporary && &value == &from) {
    to = std::move(from);
  } else {
    to = value;
    if (isTemporary) from.Reset();
  }
}

void AssignPlainThrough(Variant& place, Variant& from, bool isTemporary) {
  if (static_cast<const Variant&>(from).Deref().IsObject()) {
    Variant plain;
    AssignPlain(plain, from, isTemporary);
    place.Deref() = std::move(plain);
  } else {
    AssignPlain(place.Deref(), from, isTemporary);
  }
}

void AssignObject(Variant& to, Variant& from, bool isTemporary) {
  const Variant& value = static_cast<const Variant&>(from).Deref();
  if (!value.IsObject()) Raise(ErrorNumber::ObjectRequired);
  if (isTemporary && &value == &from) {
    to = std::move(from);
  } else {
    to = value;
    if (isTemporary) from.Reset();
  }
}

void TakeObject(RegisterView view, Instruction i) {
  Variant object = static_cast<const Variant&>(view.R[i.b]).Deref();
  view.ClearTemporary(i.b);
  if (!object.IsObject()) Raise(ErrorNumber::ObjectRequired);
  view.R[i.a] = std::move(object);
}

void AppendText(const Context& context, Variant& place, const Variant& tail) {
  // A default property may change where `place` refers to, so it is called first.
  if (tail.Deref().IsObject()) {
    const Variant text = place.Deref();
    Variant sum = Concatenate(text, DefaultValue(tail));
    if (sum.IsString()) context.CheckTextSize(sum.StringView().size());
    place.Deref() = std::move(sum);
    return;
  }
  Variant& target = place.Deref();
  if (!target.IsString()) {
    Variant sum = Concatenate(target, tail);
    place.Deref() = std::move(sum);
  } else if (tail.IsString()) {
    Extend(context, target, tail.StringView());
  } else if (tail.IsWhole()) {
    Extend(context, target, WholeNumberText(tail.Long()).View());
  } else {
    Extend(context, target, TextOf(tail));
  }
}

void AppendText(const Context& context, Variant& place, RegisterView view, std::uint16_t r) {
  AppendText(context, place, static_cast<const Variant&>(view.R[r]));
  view.ClearTemporary(r);
}

void ConcatenateOperands(const Context& context, RegisterView view, Instruction i) {
  const Variant& x = view.B(i);
  const Variant& y = view.C(i);
  if (x.IsString() && (y.IsString() || y.IsWhole())) {
    Variant sum = x;
    AppendText(context, sum, y);
    StoreResult(view, i, std::move(sum));
    return;
  }
  const Operands operands(view, i);
  Variant sum = Concatenate(operands.Left(), operands.Right());
  if (sum.IsString()) context.CheckTextSize(sum.StringView().size());
  StoreResult(view, i, std::move(sum));
}

}  // namespace cardwright::vbscript
