// SPDX-License-Identifier: MIT
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/DateFormat.h"
#include "cardwright/automation/DecimalDigits.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Locale.h"
#include "cardwright/automation/Object.h"

namespace cardwright {

namespace {

std::u16string Digits(long long value) {
  const std::string digits = std::to_string(value);
  return {digits.begin(), digits.end()};
}

Text FormatExactNumber(const DecimalDigits& number) {
  std::u16string text;
  for (const char c : number.Plain()) text += c == '.' ? Locale::Current().decimal : static_cast<char16_t>(c);
  return Text(text);
}

}  // namespace

Text ToText(const Variant& value) {
  const Variant& plain = value.Deref();
  switch (plain.Type()) {
    case VarType::Empty: return {};
    case VarType::String: return plain.String();
    case VarType::Boolean: return plain.Boolean() ? u"True" : u"False";
    case VarType::Byte:
    case VarType::Integer:
    case VarType::Long: return Text(Digits(ToLong(plain)));
    case VarType::Single: return FormatSingle(plain.Single(), Locale::Current().decimal);
    case VarType::Double: return FormatDouble(plain.Double(), Locale::Current().decimal);
    case VarType::Currency: return FormatExactNumber(DecimalDigits::Of(plain.CurrencyValue()));
    case VarType::Decimal: return FormatExactNumber(DecimalDigits::Of(plain.DecimalValue()));
    case VarType::Date: return FormatDate({plain.Double()}, Locale::Current());
    case VarType::Error: return Text(u"Error " + Digits(plain.ErrorCode()));
    case VarType::Object: return ToText(DefaultValue(plain));
    case VarType::Null: Raise(ErrorNumber::InvalidUseOfNull);
    default: Raise(ErrorNumber::TypeMismatch);
  }
}

}  // namespace cardwright
