#include "vbscript/machine/SlowPaths.h"

#include <charconv>

#include "automation/Array.h"
#include "automation/Conversions.h"
#include "automation/Errors.h"
#include "automation/Object.h"
#include "vbscript/Context.h"

namespace cardwright::vbscript {

namespace {

LiteralSide Literals(std::uint8_t n) noexcept {
  constexpr LiteralSide kSides[] = {LiteralSide::None, LiteralSide::Right, LiteralSide::Left,
                                    LiteralSide::Both};
  return kSides[n & (kConstantB | kConstantC)];
}

void Finish(RegisterView view, Instruction i, Variant outcome) {
  view.SpendB(i);
  view.SpendC(i);
  view.R[i.a] = std::move(outcome);
}

bool IsWhole(const Variant& value) noexcept {
  return value.Type() == VarType::Long || value.Type() == VarType::Integer;
}

// Digits of a whole number without going through a text of its own.
class Digits {
 public:
  explicit Digits(std::int32_t value) noexcept {
    char narrow[12];
    const char* end = std::to_chars(narrow, narrow + sizeof narrow, value).ptr;
    for (const char* c = narrow; c != end; ++c) m_Units[m_Count++] = static_cast<char16_t>(*c);
  }
  std::u16string_view View() const noexcept { return {m_Units, m_Count}; }

 private:
  char16_t m_Units[12];
  std::size_t m_Count = 0;
};

Text TextOf(const Variant& value) {
  const Variant plain = value.Deref().IsObject() ? DefaultValue(value) : value.Deref();
  return plain.IsNull() ? Text() : ToText(plain);
}

void Extend(const Context& context, Variant& target, std::u16string_view tail) {
  context.CheckTextSize(target.StringView().size() + tail.size());
  target.Append(tail);
}

}  // namespace

void ApplyBinary(RegisterView view, Instruction i, Variant (*operation)(const Variant&, const Variant&)) {
  Finish(view, i, operation(view.B(i), view.C(i)));
}

void ApplyBinary(RegisterView view, Instruction i, BinaryOperator op) {
  Finish(view, i, Apply(op, view.B(i), view.C(i), Literals(i.n)));
}

void ApplyUnary(RegisterView view, Instruction i, Variant (*operation)(const Variant&)) {
  Variant outcome = operation(view.R[i.b]);
  view.Spend(i.b);
  view.R[i.a] = std::move(outcome);
}

Ordering CompareOperands(RegisterView view, Instruction i) {
  const Variant& x = view.B(i);
  const Variant& y = view.C(i);
  Ordering order;
  if (x.IsString() && y.IsString()) {
    const int sign = x.StringView().compare(y.StringView());
    order = sign < 0 ? Ordering::Less : sign > 0 ? Ordering::Greater : Ordering::Equal;
  } else {
    order = Compare(x, y, Literals(i.n));
  }
  view.SpendB(i);
  view.SpendC(i);
  return order;
}

bool IsTrueOperand(RegisterView view, std::uint16_t r) {
  const bool holds = IsTrue(view.R[r]);
  view.Spend(r);
  return holds;
}

void CopyValue(Variant& to, const Variant& from) { to = from.Deref(); }

void AssignPlain(Variant& to, Variant& from, bool spend) {
  const Variant& value = static_cast<const Variant&>(from).Deref();
  if (value.IsObject()) {
    Variant plain = DefaultValue(value);
    if (spend) from.Reset();
    to = std::move(plain);
  } else if (value.IsArray() && value.ArrayPtr()->IsFixed()) {
    to = Variant(value.ArrayPtr()->Copy());  // the copy can be dimensioned anew
    if (spend) from.Reset();
  } else if (spend && &value == &from) {
    to = std::move(from);
  } else {
    to = value;
    if (spend) from.Reset();
  }
}

void AssignObject(Variant& to, Variant& from, bool spend) {
  const Variant& value = static_cast<const Variant&>(from).Deref();
  if (!value.IsObject()) Raise(ErrorNumber::ObjectRequired);
  if (spend && &value == &from) {
    to = std::move(from);
  } else {
    to = value;
    if (spend) from.Reset();
  }
}

void TakeObject(RegisterView view, Instruction i) {
  Variant object = static_cast<const Variant&>(view.R[i.b]).Deref();
  view.Spend(i.b);
  if (!object.IsObject()) Raise(ErrorNumber::ObjectRequired);
  view.R[i.a] = std::move(object);
}

void AppendText(const Context& context, Variant& target, const Variant& tail) {
  if (!target.IsString()) {
    target = Concatenate(target, tail);
  } else if (tail.IsString()) {
    Extend(context, target, tail.StringView());
  } else if (IsWhole(tail)) {
    Extend(context, target, Digits(tail.Long()).View());
  } else {
    Extend(context, target, TextOf(tail));
  }
}

void AppendText(const Context& context, Variant& target, RegisterView view, std::uint16_t r) {
  AppendText(context, target, static_cast<const Variant&>(view.R[r]));
  view.Spend(r);
}

void ConcatenateOperands(const Context& context, RegisterView view, Instruction i) {
  const Variant& x = view.B(i);
  const Variant& y = view.C(i);
  if (x.IsString() && (y.IsString() || IsWhole(y))) {
    Variant sum = x;
    AppendText(context, sum, y);
    Finish(view, i, std::move(sum));
    return;
  }
  Variant sum = Concatenate(x, y);
  if (sum.IsString()) context.CheckTextSize(sum.StringView().size());
  Finish(view, i, std::move(sum));
}

}  // namespace cardwright::vbscript
