// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/DecimalDigits.h"
#include "cardwright/automation/Object.h"

namespace cardwright {

namespace {

constexpr int kAnyDecimals = 400;

Text FromAscii(const std::string& text, char16_t point) {
  std::u16string result(text.begin(), text.end());
  std::replace(result.begin(), result.end(), u'.', point);
  return Text(result);
}

// "1.#INF" and its like, as the platform's run time has always spelled what is no number.
Text FormatNotFinite(double value, char16_t point) {
  if (std::isnan(value)) return FromAscii("-1.#IND", point);
  return FromAscii(value > 0 ? "1.#INF" : "-1.#INF", point);
}

// Plain between 0.0001 and 10^significant with at most so many decimals, else "1.5E+20".
std::string Layout(DecimalDigits number, int significant, int maxDecimals) {
  number.DropTrailingZeros();
  const int leading = number.exponent + static_cast<int>(number.digits.size()) - 1;
  const bool isPlain = leading >= -4 && leading < significant && -number.exponent <= maxDecimals;
  if (number.digits.empty() || isPlain) return number.Plain();
  std::string text = number.negative ? "-" : "";
  text += number.digits.front();
  if (number.digits.size() > 1) text += "." + number.digits.substr(1);
  const std::string power = std::to_string(std::abs(leading));
  return text + (leading < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" + power : power);
}

Text StrOf(const std::string& plain) {
  const bool negative = plain.front() == '-';
  std::string text = negative ? plain.substr(1) : plain;
  if (text.starts_with("0.")) text.erase(0, 1);
  return FromAscii((negative ? "-" : " ") + text, u'.');
}

}  // namespace

Text FormatDouble(double value, char16_t point) {
  if (!std::isfinite(value)) return FormatNotFinite(value, point);
  return FromAscii(Layout(DecimalDigits::Of(value, kDoubleDigits), kDoubleDigits, kDoubleDigits), point);
}

Text FormatSingle(float value, char16_t point) {
  if (!std::isfinite(value)) return FormatNotFinite(value, point);
  return FromAscii(Layout(DecimalDigits::Of(value, kSingleDigits), kSingleDigits, kSingleDigits), point);
}

Text FormatExact(double value) {
  if (!std::isfinite(value)) return FormatNotFinite(value, u'.');
  return FromAscii(Layout(DecimalDigits::Shortest(value), kDoubleDigits, kAnyDecimals), u'.');
}

Text Str(const Variant& number) {
  const Variant& plain = number.Deref();
  switch (plain.Type()) {
    case VarType::Boolean: return plain.Boolean() ? u"True" : u"False";
    case VarType::Single:
      if (!std::isfinite(plain.Single())) return FormatNotFinite(plain.Single(), u'.');
      return StrOf(Layout(DecimalDigits::Shortest(plain.Single()), kSingleDigits, kAnyDecimals));
    case VarType::Currency: return StrOf(DecimalDigits::Of(plain.CurrencyValue()).Plain());
    case VarType::Decimal: return StrOf(DecimalDigits::Of(plain.DecimalValue()).Plain());
    case VarType::Object: return Str(DefaultValue(plain));
    case VarType::Date: return ToText(plain);
    default: {
      const double value = ToDouble(plain);
      if (!std::isfinite(value)) return FormatNotFinite(value, u'.');
      return StrOf(Layout(DecimalDigits::Shortest(value), kDoubleDigits, kAnyDecimals));
    }
  }
}

}  // namespace cardwright
