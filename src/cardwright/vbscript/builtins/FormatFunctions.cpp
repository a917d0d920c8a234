// SPDX-License-Identifier: MIT
#include <cmath>
#include <string>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/DateFormat.h"
#include "cardwright/automation/DecimalDigits.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Locale.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/builtins/BuiltinArguments.h"

// Numbers and dates as a user of the script's locale writes them.
namespace cardwright::vbscript {

namespace {

constexpr int kDefaultDecimals = 2;
constexpr int kMaxShownDecimals = 255;

// The optional arguments. By default every locale has two decimals, shows a leading zero and groups digits.
struct NumberOptions {
  int decimals = kDefaultDecimals;
  bool hasLeadingZero = true;
  bool isGrouped = true;
  enum class Parentheses { AsLocale, Yes, No } parentheses = Parentheses::AsLocale;
};

// vbTrue, vbFalse or vbUseDefault.
std::int32_t ReadTristate(Args args, std::size_t index) {
  const std::int32_t value = LongOr(args, index, -2);
  if (value < -2 || value > 0) Raise(ErrorNumber::InvalidCall);
  return value;
}

NumberOptions ReadNumberOptions(Args args) {
  NumberOptions options;
  const std::int32_t decimals = LongOr(args, 1, -1);
  if (decimals < -1 || decimals > kMaxShownDecimals) Raise(ErrorNumber::InvalidCall);
  options.decimals = decimals == -1 ? kDefaultDecimals : decimals;
  options.hasLeadingZero = ReadTristate(args, 2) != 0;
  const std::int32_t parentheses = ReadTristate(args, 3);
  if (parentheses == -1) options.parentheses = NumberOptions::Parentheses::Yes;
  if (parentheses == 0) options.parentheses = NumberOptions::Parentheses::No;
  options.isGrouped = ReadTristate(args, 4) != 0;
  return options;
}

// Rounding starts from the digits that CStr shows, so that 2.345 rounds to 2.35. Null is error 13 here, as
// anything that is no number.
DecimalDigits NumberToFormat(Args args) {
  if (IsNullArgument(args, 0)) Raise(ErrorNumber::TypeMismatch);
  const Variant& value = args[0];
  if (value.Type() == VarType::Currency) return DecimalDigits::Of(value.CurrencyValue());
  if (value.Type() == VarType::Decimal) return DecimalDigits::Of(value.DecimalValue());
  const double number = ToDouble(value);
  if (!std::isfinite(number)) Raise(ErrorNumber::Overflow);
  return DecimalDigits::Of(number, value.Type() == VarType::Single ? kSingleDigits : kDoubleDigits);
}

// The order of a number, its sign and its symbol: 'n' for the digits, '$' for the symbol.
struct NumberForms {
  std::u16string_view positive, negative, negativeInParentheses, negativeWithSign;
};

std::u16string_view Choose(const NumberForms& forms, const NumberOptions& options, bool isNegative) noexcept {
  if (!isNegative) return forms.positive;
  switch (options.parentheses) {
    case NumberOptions::Parentheses::Yes: return forms.negativeInParentheses;
    case NumberOptions::Parentheses::No: return forms.negativeWithSign;
    case NumberOptions::Parentheses::AsLocale: return forms.negative;
  }
  return forms.negative;
}

void AppendGroups(std::u16string& text, const std::string& whole, bool isGrouped, char16_t separator) {
  constexpr std::size_t kGroup = 3;
  for (std::size_t i = 0; i < whole.size(); ++i) {
    if (isGrouped && i != 0 && (whole.size() - i) % kGroup == 0) text += separator;
    text += static_cast<char16_t>(whole[i]);
  }
}

// The number without its sign, rounded half away from zero.
std::u16string DigitsText(DecimalDigits number, const NumberOptions& options, const Locale& locale) {
  number.RoundAwayTo(-options.decimals);
  const auto decimals = static_cast<std::size_t>(options.decimals);
  std::string digits = number.digits;
  if (!digits.empty()) digits.append(static_cast<std::size_t>(number.exponent + options.decimals), '0');
  if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), '0');
  std::string whole = digits.substr(0, digits.size() - decimals);
  if (whole == "0" && !options.hasLeadingZero && decimals > 0) whole.clear();

  std::u16string text;
  AppendGroups(text, whole, options.isGrouped, locale.group);
  if (decimals > 0) {
    text += locale.decimal;
    text.append(digits.end() - static_cast<std::ptrdiff_t>(decimals), digits.end());
  }
  return text;
}

// The sign stays where all digits round to zero, as in "-0.00": reports tell a small loss from none by it.
Variant FormatWith(const Context& context, const DecimalDigits& number, const NumberOptions& options,
                   const NumberForms& forms) {
  const std::u16string digits = DigitsText(number, options, *context.locale);
  std::u16string text;
  for (const char16_t c : Choose(forms, options, number.negative)) {
    if (c == u'n') {
      text += digits;
    } else if (c == u'$') {
      text += context.locale->currency;
    } else {
      text += c;
    }
  }
  return Text(text);
}

// FormatNumber(expression[, decimals[, leadingzero[, parentheses[, group]]]])
Variant FormatNumberFunction(Context& context, Args args) {
  const DecimalDigits number = NumberToFormat(args);
  return FormatWith(context, number, ReadNumberOptions(args), {u"n", u"-n", u"(n)", u"-n"});
}

// FormatPercent: the same arguments.
Variant FormatPercentFunction(Context& context, Args args) {
  DecimalDigits number = NumberToFormat(args);
  number.exponent += 2;
  return FormatWith(context, number, ReadNumberOptions(args), {u"n%", u"-n%", u"(n%)", u"-n%"});
}

// FormatCurrency: the same arguments.
Variant FormatCurrencyFunction(Context& context, Args args) {
  const DecimalDigits number = NumberToFormat(args);
  const std::u16string_view positive = context.locale->currencyForm;
  const std::u16string_view negative = context.locale->negativeCurrencyForm;
  const std::u16string inParentheses = u"(" + std::u16string(positive) + u")";
  const std::u16string signedForm = u"-" + std::u16string(positive);
  const bool usesParentheses = negative.find(u'(') != negative.npos;
  return FormatWith(context, number, ReadNumberOptions(args),
                    {positive, negative, inParentheses, usesParentheses ? signedForm : negative});
}

enum NamedFormat { kGeneralDate, kLongDate, kShortDate, kLongTime, kShortTime };

// FormatDateTime(date[, format])
Variant FormatDateTimeFunction(Context& context, Args args) {
  const std::int32_t format = LongOr(args, 1, kGeneralDate);
  if (format < kGeneralDate || format > kShortTime) Raise(ErrorNumber::InvalidCall);
  if (IsNullArgument(args, 0)) Raise(ErrorNumber::TypeMismatch);
  const Date date = ToDate(args[0]);
  const CalendarTime time = ToCalendar(date);
  const Locale& locale = *context.locale;
  switch (format) {
    case kLongDate: return FormatLongDate(time, locale);
    case kShortDate: return FormatShortDate(time, locale);
    case kLongTime: return FormatLongTime(time, locale);
    case kShortTime: return FormatShortTime(time);
    default: return FormatDate(date, locale);
  }
}

constexpr Builtin kFormatFunctions[] = {
    {u"FormatCurrency", FormatCurrencyFunction, 1, 5},
    {u"FormatDateTime", FormatDateTimeFunction, 1, 2},
    {u"FormatNumber", FormatNumberFunction, 1, 5},
    {u"FormatPercent", FormatPercentFunction, 1, 5},
};

}  // namespace

std::span<const Builtin> FormatFunctions() { return kFormatFunctions; }

}  // namespace cardwright::vbscript
