#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/builtins/Conversion.h"

namespace cardwright::vbscript::conversion {

namespace {

// What an object stands for: its default value, or itself where it has none or asks for arguments.
Variant Meaning(const Variant& value) {
  if (!value.IsObject() || !value.ObjectPtr()) return value;
  return AttemptOr(value, [&] { return DefaultValue(value); });
}

std::u16string_view NameOf(cardwright::VarType type) noexcept {
  using enum cardwright::VarType;
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

constexpr int kVariantElements = 12;  // of an array, added to its type

}  // namespace

Variant IsArray(Context&, Args args) { return args[0].IsArray(); }
Variant IsDate(Context&, Args args) { return cardwright::IsDate(args[0]); }
Variant IsEmpty(Context&, Args args) { return Meaning(args[0]).IsEmpty(); }
Variant IsNull(Context&, Args args) { return Meaning(args[0]).IsNull(); }
Variant IsNumeric(Context&, Args args) { return cardwright::IsNumeric(args[0]); }
Variant IsObject(Context&, Args args) { return args[0].IsObject(); }

Variant TypeName(Context&, Args args) {
  const Variant& value = args[0];
  if (value.IsObject() && value.ObjectPtr()) return value.ObjectPtr()->TypeName();
  return NameOf(value.Type());
}

Variant VarType(Context&, Args args) {
  const Variant value = Meaning(args[0]);
  int type = static_cast<int>(value.Type());
  if (value.IsArray()) type += kVariantElements;
  return static_cast<std::int16_t>(type);
}

}  // namespace cardwright::vbscript::conversion
