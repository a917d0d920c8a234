#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/operators/Operand.h"
#include "cardwright/vbscript/operators/Operators.h"

namespace cardwright::vbscript {

namespace {

/// An operand of the logical operators: a pattern of bits and the type it counts as.
struct Bits {
  Side kind;
  std::int32_t value = 0;
};

// A text is the number it spells; one that spells a truth value is that.
Bits BitsOfText(const Variant& text) {
  const std::u16string_view word = text.StringView();
  if (EqualsNoCase(word, u"True")) return {Side::Boolean, -1};
  if (EqualsNoCase(word, u"False")) return {Side::Boolean, 0};
  return {Side::Long, ToLong(text)};
}

Bits BitsOf(const Operand& operand) {
  switch (operand.Kind()) {
    case Side::Empty:
    case Side::Boolean:
    case Side::Byte:
    case Side::Integer:
    case Side::Long: return {operand.Kind(), WholeValue(operand)};
    case Side::Text: return BitsOfText(operand);
    case Side::Null: return {Side::Null};
    case Side::Unfit: Raise(ErrorNumber::TypeMismatch);
    default: return {Side::Long, ToLong(operand)};
  }
}

Variant OfType(Working type, std::int32_t bits) noexcept {
  switch (type) {
    case Working::Boolean: return bits != 0;
    case Working::Byte: return static_cast<std::uint8_t>(bits);
    case Working::Integer: return static_cast<std::int16_t>(bits);
    default: return bits;
  }
}

// A value on its own, in the type that the operators give it.
Variant Alone(const Bits& a) noexcept { return OfType(RuleOf(kLogicRules, a.kind, a.kind), a.value); }

struct Pair {
  Pair(const Variant& left, const Variant& right) : Pair(Operand(left), Operand(right)) {}

  bool HasNull() const noexcept { return a.kind == Side::Null || b.kind == Side::Null; }
  Variant Of(std::int32_t bits) const noexcept { return OfType(RuleOf(kLogicRules, a.kind, b.kind), bits); }

  Bits a, b;

 private:
  Pair(const Operand& left, const Operand& right) : a(BitsOf(left)), b(BitsOf(right)) {}
};

}  // namespace

Variant Not(const Variant& value) {
  const Operand operand(value);
  const Bits a = BitsOf(operand);
  if (a.kind == Side::Null) return Variant::Null();
  return OfType(RuleOf(kLogicRules, a.kind, a.kind), ~a.value);
}

// Null is a value not known: where the other side decides alone, the result is known all the same.

Variant And(const Variant& left, const Variant& right) {
  const Pair p(left, right);
  if (!p.HasNull()) return p.Of(p.a.value & p.b.value);
  const Bits& known = p.a.kind == Side::Null ? p.b : p.a;
  return known.kind != Side::Null && known.value == 0 ? Alone(known) : Variant::Null();
}

Variant Or(const Variant& left, const Variant& right) {
  const Pair p(left, right);
  if (!p.HasNull()) return p.Of(p.a.value | p.b.value);
  const Bits& known = p.a.kind == Side::Null ? p.b : p.a;
  return known.kind != Side::Null && known.value != 0 ? Alone(known) : Variant::Null();
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
  if (p.a.kind != Side::Null) {
    // True implies the unknown value, anything else leaves some bits set whatever that is.
    const Variant inverse = OfType(RuleOf(kLogicRules, p.a.kind, p.a.kind), ~p.a.value);
    return WholeValue(inverse) != 0 ? inverse : Variant::Null();
  }
  return p.b.kind != Side::Null && p.b.value != 0 ? Alone(p.b) : Variant::Null();
}

bool IsTrue(const Variant& value) {
  const Operand operand(value);
  switch (operand.Kind()) {
    case Side::Null: return false;
    case Side::Boolean: return operand.Value().Boolean();
    case Side::Unfit: Raise(ErrorNumber::TypeMismatch);
    default: return ToBoolean(operand);
  }
}

}  // namespace cardwright::vbscript
