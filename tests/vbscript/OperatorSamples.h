// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

#include "automation/Printing.h"
#include "cardwright/automation/Array.h"
#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/operators/Operators.h"

namespace cardwright::vbscript {

using Operation = Variant (*)(const Variant&, const Variant&);
using Byte = std::uint8_t;
using Short = std::int16_t;

inline const Variant kNull = Variant::Null();
inline const Variant kMissing = Variant::Missing();

/// One small value of each type that operators take, in the order of the tests' tables: Empty, Boolean, Byte,
/// Integer, Long, Single, Double, Currency, Date, Decimal, text.
inline std::array<Variant, 11> OneOfEachType() {
  return {Variant(),
          Variant(true),
          Variant(std::uint8_t{2}),
          Variant(std::int16_t{3}),
          Variant(4),
          Variant(5.0F),
          Variant(6.0),
          Variant(Currency{70000}),
          Date{8},
          Decimal{.low = 9},
          Variant(u"10")};
}

/// A letter for the type of a result, as the tests' tables use them; "?13" for an error.
inline std::string LetterOf(const Variant& value) {
  switch (value.Type()) {
    case VarType::Empty: return "e";
    case VarType::Null: return "n";
    case VarType::Boolean: return "b";
    case VarType::Byte: return "y";
    case VarType::Integer: return "i";
    case VarType::Long: return "l";
    case VarType::Single: return "s";
    case VarType::Double: return "d";
    case VarType::Currency: return "c";
    case VarType::Date: return "t";
    case VarType::Decimal: return "x";
    case VarType::String: return "&";
    default: return "?";
  }
}

/// Type and text of a value, as "Integer 5" would be written "i 5"; or the number of the error, as "error 6".
template <class Step>
std::string Outcome(Step&& step) {
  try {
    const Variant value = step();
    return LetterOf(value) + (value.IsNull() ? "" : " " + ToText(value).ToUtf8());
  } catch (const Error& error) {
    return "error " + std::to_string(error.Number());
  }
}

/// An object with the default value given; with none where it is Missing.
class ValueObject final : public Object {
 public:
  explicit ValueObject(Variant value) : m_Value(std::move(value)) {}

  Text TypeName() const override { return u"Sample"; }
  MemberId FindMember(std::u16string_view) const override { return kNoMember; }
  MemberId DefaultMember() const override { return m_Value.IsMissing() ? kNoMember : 0; }
  Variant Invoke(MemberId, CallKind, Args) override { return m_Value; }

 private:
  Variant m_Value;
};

inline Variant ObjectOf(Variant value) { return MakeRef<ValueObject>(std::move(value)); }
inline Variant ObjectWithoutValue() { return ObjectOf(Variant::Missing()); }
inline Variant SomeArray() { return Array::FromValues({}); }

}  // namespace cardwright::vbscript
