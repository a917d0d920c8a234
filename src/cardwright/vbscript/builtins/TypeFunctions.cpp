// SPDX-License-Identifier: MIT
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/builtins/Builtin.h"

// Questions about the type of a value.
namespace cardwright::vbscript {

namespace {

// The default value of an object, or the object itself where it has none or where the value needs arguments.
Variant ValueOf(const Variant& value) {
  if (!value.IsObject() || !value.ObjectPtr()) return value;
  return BestEffortOr(value, [&] { return DefaultValue(value); });
}

std::u16string_view TypeNameOf(VarType type) noexcept {
  using enum VarType;
  switch (type) {
    case Empty: return u"Empty";
    case Null: return u"Null";
    case Integer: return u"Integer";
    case Long: return u"Long";
    case Single: return u"Single";
    case Double: return u"Double";
    case Currency: return u"Currency";
    case Date: return u"Date";
    case String: return u"String";
    case Object: return u"Nothing";
    case Error: return u"Error";
    case Boolean: return u"Boolean";
    case Decimal: return u"Decimal";
    case Byte: return u"Byte";
    case Array: return u"Variant()";
    default: return u"Unknown";
  }
}

// IsArray(value), IsDate(value), IsEmpty(value), IsNull(value), IsNumeric(value), IsObject(value)
Variant IsArrayFunction(Context&, Args args) { return args[0].IsArray(); }
Variant IsDateFunction(Context&, Args args) { return IsDate(args[0]); }
Variant IsEmptyFunction(Context&, Args args) { return ValueOf(args[0]).IsEmpty(); }
Variant IsNullFunction(Context&, Args args) { return ValueOf(args[0]).IsNull(); }
Variant IsNumericFunction(Context&, Args args) { return IsNumeric(args[0]); }
Variant IsObjectFunction(Context&, Args args) { return args[0].IsObject(); }

// TypeName(value): the class of an object.
Variant TypeNameFunction(Context&, Args args) {
  const Variant& value = args[0];
  if (value.IsObject() && value.ObjectPtr()) return value.ObjectPtr()->TypeName();
  return TypeNameOf(value.Type());
}

// VarType(value): an object counts as its default value; an array is vbArray + vbVariant.
Variant VarTypeFunction(Context&, Args args) {
  constexpr int kVariantElements = 12;
  const Variant value = ValueOf(args[0]);
  int type = static_cast<int>(value.Type());
  if (value.IsArray()) type += kVariantElements;
  return static_cast<std::int16_t>(type);
}

constexpr Builtin kTypeFunctions[] = {
    {u"IsArray", IsArrayFunction, 1, 1},     {u"IsDate", IsDateFunction, 1, 1},
    {u"IsEmpty", IsEmptyFunction, 1, 1},     {u"IsNull", IsNullFunction, 1, 1},
    {u"IsNumeric", IsNumericFunction, 1, 1}, {u"IsObject", IsObjectFunction, 1, 1},
    {u"TypeName", TypeNameFunction, 1, 1},   {u"VarType", VarTypeFunction, 1, 1},
};

}  // namespace

std::span<const Builtin> TypeFunctions() { return kTypeFunctions; }

}  // namespace cardwright::vbscript
