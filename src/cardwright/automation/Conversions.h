// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "cardwright/automation/Text.h"
#include "cardwright/automation/Variant.h"

namespace cardwright {

/// @name Conversions of the platform. References are dereferenced, objects replaced by their default value.
/// Errors: 13 (type mismatch) for a value that cannot be converted, 6 (overflow) for one out of range, 94 for
/// Null, 91 for Nothing. Whole numbers are rounded half to even. Texts are read by the current Locale.
/// @{
bool ToBoolean(const Variant& value);
std::uint8_t ToByte(const Variant& value);
std::int16_t ToInteger(const Variant& value);
std::int32_t ToLong(const Variant& value);
float ToSingle(const Variant& value);
double ToDouble(const Variant& value);
Currency ToCurrency(const Variant& value);
Decimal ToDecimal(const Variant& value);
Date ToDate(const Variant& value);
/// Plain conversion to text ("CStr"): decimal separator and dates by the current locale, "True" and "False"
/// in every one.
Text ToText(const Variant& value);
/// @}

/// The `Str` conversion: always a point, a blank in front of a number that is not negative, no zero before
/// the point (" .25", "-.5"). Error 13 for what is not a number.
Text Str(const Variant& number);
/// The `Val` conversion: the number at the start of the text, blanks skipped, point only, "&H" and "&O"
/// known; 0 where there is none.
double Val(std::u16string_view text) noexcept;
/// The platform's locale-aware numeric test of a text ("IsNumeric").
bool IsNumericText(std::u16string_view text) noexcept;
/// The same of any value: true for numbers, Boolean, Empty and numeric texts.
bool IsNumeric(const Variant& value) noexcept;
/// True for a Date and for a text that ToDate can read; a number is no date.
bool IsDate(const Variant& value) noexcept;

/// A Double as the platform prints it: 15 significant digits, with `point` as decimal separator; in the style
/// "1E+15" from there on, below 0.0001, and where more than 15 decimals would be needed. A Single has 7
/// digits and 7 decimals.
Text FormatDouble(double value, char16_t point = u'.');
Text FormatSingle(float value, char16_t point = u'.');
/// Shortest decimal text that reads back as the same value, in plain or exponent notation with a point.
Text FormatExact(double value);

}  // namespace cardwright
