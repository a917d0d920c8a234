// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/DecimalDigits.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Locale.h"
#include "cardwright/automation/NumericText.h"
#include "cardwright/automation/Object.h"

namespace cardwright {

namespace {

constexpr int kCurrencyUnit = -4;
constexpr double kTenThousand = 10000;

NumericText RequireNumber(std::u16string_view text) {
  auto number = ReadNumericText(text, Locale::Current());
  if (!number) Raise(ErrorNumber::TypeMismatch);
  return *std::move(number);
}

[[noreturn]] void RaiseNoNumber(const Variant& value) {
  Raise(value.IsNull() ? ErrorNumber::InvalidUseOfNull : ErrorNumber::TypeMismatch);
}

template <class Whole>
Whole Checked(std::int64_t value) {
  if (value < std::numeric_limits<Whole>::min() || value > std::numeric_limits<Whole>::max()) {
    Raise(ErrorNumber::Overflow);
  }
  return static_cast<Whole>(value);
}

template <class Whole>
Whole Rounded(double value) {
  const double whole = std::nearbyint(value);  // half to even, the mode that nothing here ever changes
  const bool fits = whole >= std::numeric_limits<Whole>::min() && whole <= std::numeric_limits<Whole>::max();
  if (!fits) Raise(ErrorNumber::Overflow);
  return static_cast<Whole>(whole);
}

template <class Whole>
Whole Rounded(const DecimalDigits& digits) {
  const auto whole = digits.Count(0);
  if (!whole) Raise(ErrorNumber::Overflow);
  return Checked<Whole>(*whole);
}

template <class Whole>
Whole WholeFromText(std::u16string_view text) {
  const NumericText number = RequireNumber(text);
  if (!number.bits) return Rounded<Whole>(number.digits);
  // "&HFFFF" is the bit pattern of the type asked for: -1 as an Integer, 65535 as a Long.
  using Bits = std::make_unsigned_t<Whole>;
  if (*number.bits > std::numeric_limits<Bits>::max()) Raise(ErrorNumber::Overflow);
  return static_cast<Whole>(static_cast<Bits>(*number.bits));
}

template <class Whole>
Whole ToWhole(const Variant& value) {
  const Variant& plain = value.Deref();
  switch (plain.Type()) {
    case VarType::Empty: return 0;
    case VarType::Boolean: return static_cast<Whole>(plain.Boolean() ? -1 : 0);  // 255 as a Byte
    case VarType::Byte: return plain.Byte();
    case VarType::Integer: return Checked<Whole>(plain.Integer());
    case VarType::Long: return Checked<Whole>(plain.Long());
    case VarType::Single: return Rounded<Whole>(plain.Single());
    case VarType::Double:
    case VarType::Date: return Rounded<Whole>(plain.Double());
    case VarType::Currency: return Rounded<Whole>(DecimalDigits::Of(plain.CurrencyValue()));
    case VarType::Decimal: return Rounded<Whole>(DecimalDigits::Of(plain.DecimalValue()));
    case VarType::String: return WholeFromText<Whole>(plain.StringView());
    case VarType::Object: return ToWhole<Whole>(DefaultValue(plain));
    default: RaiseNoNumber(plain);
  }
}

double DoubleFromText(std::u16string_view text) {
  const NumericText number = RequireNumber(text);
  return number.bits ? static_cast<double>(*number.bits) : number.digits.ToDouble();
}

Currency CurrencyFromDigits(const DecimalDigits& digits) {
  const auto count = digits.Count(kCurrencyUnit);
  if (!count) Raise(ErrorNumber::Overflow);
  return {*count};
}

Currency CurrencyFromText(std::u16string_view text) {
  const NumericText number = RequireNumber(text);
  return number.bits ? ToCurrency(static_cast<double>(*number.bits)) : CurrencyFromDigits(number.digits);
}

Decimal DecimalFromText(std::u16string_view text) {
  const NumericText number = RequireNumber(text);
  return number.bits ? Decimal{.low = *number.bits} : number.digits.ToDecimal();
}

Decimal DecimalFromDouble(double value, int significant) {
  if (!std::isfinite(value)) Raise(ErrorNumber::Overflow);
  return DecimalDigits::Of(value, significant).ToDecimal();
}

bool BooleanFromText(std::u16string_view text) {
  if (EqualsNoCase(text, u"True") || text == u"#TRUE#") return true;
  if (EqualsNoCase(text, u"False") || text == u"#FALSE#") return false;
  return DoubleFromText(text) != 0;
}

}  // namespace

std::uint8_t ToByte(const Variant& value) { return ToWhole<std::uint8_t>(value); }
std::int16_t ToInteger(const Variant& value) { return ToWhole<std::int16_t>(value); }

std::int32_t ToLong(const Variant& value) {
  if (value.Type() == VarType::Long) return value.Long();
  return ToWhole<std::int32_t>(value);
}

bool ToBoolean(const Variant& value) {
  const Variant& plain = value.Deref();
  switch (plain.Type()) {
    case VarType::Boolean: return plain.Boolean();
    case VarType::String: return BooleanFromText(plain.StringView());
    case VarType::Object: return ToBoolean(DefaultValue(plain));
    case VarType::Currency: return plain.CurrencyValue().tenThousandths != 0;
    default: return ToDouble(plain) != 0;
  }
}

double ToDouble(const Variant& value) {
  const Variant& plain = value.Deref();
  switch (plain.Type()) {
    case VarType::Single: return plain.Single();
    case VarType::Double:
    case VarType::Date: return plain.Double();
    case VarType::Currency: return static_cast<double>(plain.CurrencyValue().tenThousandths) / kTenThousand;
    case VarType::Decimal: return DecimalDigits::Of(plain.DecimalValue()).ToDouble();
    case VarType::String: return DoubleFromText(plain.StringView());
    case VarType::Object: return ToDouble(DefaultValue(plain));
    default: return ToWhole<std::int32_t>(plain);
  }
}

float ToSingle(const Variant& value) {
  const Variant& plain = value.Deref();
  if (plain.Type() == VarType::Single) return plain.Single();
  const double wide = ToDouble(plain);
  const auto single = static_cast<float>(wide);
  if (std::isinf(single) && !std::isinf(wide)) Raise(ErrorNumber::Overflow);
  return single;
}

Currency ToCurrency(const Variant& value) {
  const Variant& plain = value.Deref();
  switch (plain.Type()) {
    case VarType::Currency: return plain.CurrencyValue();
    case VarType::Single:
    case VarType::Double:
    case VarType::Date: {
      const double count = std::nearbyint(ToDouble(plain) * kTenThousand);
      constexpr double kLimit = 0x1p63;
      if (!(count >= -kLimit && count < kLimit)) Raise(ErrorNumber::Overflow);
      return {static_cast<std::int64_t>(count)};
    }
    case VarType::Decimal: return CurrencyFromDigits(DecimalDigits::Of(plain.DecimalValue()));
    case VarType::String: return CurrencyFromText(plain.StringView());
    case VarType::Object: return ToCurrency(DefaultValue(plain));
    default: return {std::int64_t{ToWhole<std::int32_t>(plain)} * 10000};
  }
}

Decimal ToDecimal(const Variant& value) {
  const Variant& plain = value.Deref();
  switch (plain.Type()) {
    case VarType::Decimal: return plain.DecimalValue();
    case VarType::Single: return DecimalFromDouble(plain.Single(), kSingleDigits);
    case VarType::Double:
    case VarType::Date: return DecimalFromDouble(plain.Double(), kDoubleDigits);
    case VarType::String: return DecimalFromText(plain.StringView());
    case VarType::Object: return ToDecimal(DefaultValue(plain));
    default: return DecimalDigits::Of(ToCurrency(plain)).ToDecimal();
  }
}

}  // namespace cardwright
