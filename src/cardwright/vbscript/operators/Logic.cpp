// SPDX-License-Identifier: MIT
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/operators/Operand.h"
#include "cardwright/vbscript/operators/Operators.h"

namespace cardwright::vbscript {

namespace {

/// An operand of the logical operators: its bits and its type.
struct Bits {
  OperandType kind;
  std::int32_t value = 0;
};

// A string is converted to its number, or to the Boolean that it spells.
Bits BitsOfText(const Variant& text) {
  const std::u16string_view word = text.StringView();
  if (EqualsNoCase(word, u"True")) return {OperandType::Boolean, -1};
  if (EqualsNoCase(word, u"False")) return {OperandType::Boolean, 0};
  return {OperandType::Long, ToLong(text)};
}

Bits BitsOf(const Operand& operand) {
  switch (operand.Kind()) {
    case OperandType::Empty:
    case OperandType::Boolean:
    case OperandType::Byte:
    case OperandType::Integer:
    case OperandType::Long: return {operand.Kind(), WholeValue(operand)};
    case OperandType::Text: return BitsOfText(operand);
    case OperandType::Null: return {OperandType::Null};
    case OperandType::Unsupported: Raise(ErrorNumber::TypeMismatch);
    default: return {OperandType::Long, ToLong(operand)};
  }
}

Variant OfType(WorkingType type, std::int32_t bits) noexcept {
  switch (type) {
    case WorkingType::Boolean: return bits != 0;
    case WorkingType::Byte: return static_cast<std::uint8_t>(bits);
    case WorkingType::Integer: return static_cast<std::int16_t>(bits);
    default: return bits;
  }
}

// A single operand as a result.
Variant Alone(const Bits& a) noexcept { return OfType(RuleOf(kLogicRules, a.kind, a.kind), a.value); }

struct Pair {
  Pair(const Variant& left, const Variant& right) : Pair(Operand(left), Operand(right)) {}

  bool HasNull() const noexcept { return a.kind == OperandType::Null || b.kind == OperandType::Null; }
  Variant Of(std::int32_t bits) const noexcept { return OfType(RuleOf(kLogicRules, a.kind, b.kind), bits); }

  Bits a, b;

 private:
  Pair(const Operand& left, const Operand& right) : a(BitsOf(left)), b(BitsOf(right)) {}
};

}  // namespace

Variant Not(const Variant& value) {
  const Operand operand(value);
  const Bits a = BitsOf(operand);
  if (a.kind == OperandType::Null) return Variant::Null();
  return OfType(RuleOf(kLogicRules, a.kind, a.kind), ~a.value);
}

// Null is an unknown value. Where the other operand decides the result alone, the result is known.

Variant And(const Variant& left, const Variant& right) {
  const Pair p(left, right);
  if (!p.HasNull()) return p.Of(p.a.value & p.b.value);
  const Bits& known = p.a.kind == OperandType::Null ? p.b : p.a;
  return known.kind != OperandType::Null && known.value == 0 ? Alone(known) : Variant::Null();
}

Variant Or(const Variant& left, const Variant& right) {
  const Pair p(left, right);
  if (!p.HasNull()) return p.Of(p.a.value | p.b.value);
  const Bits& known = p.a.kind == OperandType::Null ? p.b : p.a;
  return known.kind != OperandType::Null && known.value != 0 ? Alone(known) : Variant::Null();
}

Variant Xor(const Variant& left, const Variant& right) {
  const Pair p(left, right);
  return p.HasNull() ? Variant::Null() : p.Of(p.a.value ^ p.b.value);
}

Variant Eqv(const Variant& left, const Variant& right) {
  const Pair p(left, right);
  return p.HasNull() ? Variant::Null() : p.Of(~(p.a.value ^ p.b.value));
}

Variant Imp(const Variant& left, const Variant& right) {
  const Pair p(left, right);
  if (!p.HasNull()) return p.Of(~p.a.value | p.b.value);
  if (p.a.kind != OperandType::Null) {
    // All bits set: the result is the unknown value. Otherwise some result bits are set in any case.
    const Variant inverse = OfType(RuleOf(kLogicRules, p.a.kind, p.a.kind), ~p.a.value);
    return WholeValue(inverse) != 0 ? inverse : Variant::Null();
  }
  return p.b.kind != OperandType::Null && p.b.value != 0 ? Alone(p.b) : Variant::Null();
}

bool IsTrue(const Variant& value) {
  const Operand operand(value);
  switch (operand.Kind()) {
    case OperandType::Null: return false;
    case OperandType::Boolean: return operand.Value().Boolean();
    case OperandType::Unsupported: Raise(ErrorNumber::TypeMismatch);
    default: return ToBoolean(operand);
  }
}

}  // namespace cardwright::vbscript
