#include <cmath>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/DateFormat.h"
#include "cardwright/automation/DecimalDigits.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/Arguments.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/builtins/NumberShape.h"

namespace cardwright::vbscript {

namespace {

constexpr int kDefaultDecimals = 2;  // of every locale in the table
constexpr int kMaxShownDecimals = 255;

/// The arguments behind the number: each locale of the table shows a leading zero and groups digits.
struct Options {
  NumberShape shape;
  enum class Parentheses { AsLocale, Yes, No } parentheses = Parentheses::AsLocale;
};

// -1 for yes, 0 for no, -2 for what the locale says.
std::int32_t ReadTristate(Args args, std::size_t index) {
  const std::int32_t value = LongOr(args, index, -2);
  if (value < -2 || value > 0) Raise(ErrorNumber::InvalidCall);
  return value;
}

Options ReadOptions(Args args) {
  Options options;
  const std::int32_t decimals = LongOr(args, 1, -1);
  if (decimals < -1 || decimals > kMaxShownDecimals) Raise(ErrorNumber::InvalidCall);
  options.shape.decimals = decimals == -1 ? kDefaultDecimals : decimals;
  options.shape.leadingZero = ReadTristate(args, 2) != 0;
  const std::int32_t parentheses = ReadTristate(args, 3);
  if (parentheses == -1) options.parentheses = Options::Parentheses::Yes;
  if (parentheses == 0) options.parentheses = Options::Parentheses::No;
  options.shape.grouped = ReadTristate(args, 4) != 0;
  return options;
}

// The digits that the number shows, so that 2.345 rounds as it is read. Error 13 for Null too.
DecimalDigits NumberToFormat(Args args) {
  if (TakesNull(args, 0)) Raise(ErrorNumber::TypeMismatch);
  const Variant& value = args[0];
  if (value.Type() == VarType::Currency) return DecimalDigits::Of(value.CurrencyValue());
  if (value.Type() == VarType::Decimal) return DecimalDigits::Of(value.DecimalValue());
  const double number = ToDouble(value);
  if (!std::isfinite(number)) Raise(ErrorNumber::Overflow);
  return DecimalDigits::Of(number, value.Type() == VarType::Single ? kSingleDigits : kDoubleDigits);
}

/// How a number and what goes with it stand together: 'n' for the digits, '$' for the symbol.
struct Forms {
  std::u16string_view positive, negative, negativeInParentheses, negativeWithSign;
};

std::u16string_view Choose(const Forms& forms, const Options& options, bool isNegative) noexcept {
  if (!isNegative) return forms.positive;
  switch (options.parentheses) {
    case Options::Parentheses::Yes: return forms.negativeInParentheses;
    case Options::Parentheses::No: return forms.negativeWithSign;
    case Options::Parentheses::AsLocale: return forms.negative;
  }
  return forms.negative;
}

// The sign stays where all digits round to zero, as in "-0.00": reports tell a small loss from none by it.
Variant Format(const Context& context, const DecimalDigits& number, const Options& options,
               const Forms& forms) {
  const std::u16string digits = ShapeNumber(number, options.shape, *context.locale);
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

Variant FormatNumberFunction(Context& context, Args args) {
  const DecimalDigits number = NumberToFormat(args);
  return Format(context, number, ReadOptions(args), {u"n", u"-n", u"(n)", u"-n"});
}

Variant FormatPercentFunction(Context& context, Args args) {
  DecimalDigits number = NumberToFormat(args);
  number.exponent += 2;
  return Format(context, number, ReadOptions(args), {u"n%", u"-n%", u"(n%)", u"-n%"});
}

Variant FormatCurrencyFunction(Context& context, Args args) {
  const DecimalDigits number = NumberToFormat(args);
  const std::u16string_view positive = context.locale->currencyForm;
  const std::u16string_view negative = context.locale->negativeCurrencyForm;
  const std::u16string inParentheses = u"(" + std::u16string(positive) + u")";
  const std::u16string signedForm = u"-" + std::u16string(positive);
  const bool usesParentheses = negative.find(u'(') != negative.npos;
  return Format(context, number, ReadOptions(args),
                {positive, negative, inParentheses, usesParentheses ? signedForm : negative});
}

enum NamedFormat { kGeneralDate, kLongDate, kShortDate, kLongTime, kShortTime };

Variant FormatDateTimeFunction(Context& context, Args args) {
  const std::int32_t format = LongOr(args, 1, kGeneralDate);
  if (format < kGeneralDate || format > kShortTime) Raise(ErrorNumber::InvalidCall);
  if (TakesNull(args, 0)) Raise(ErrorNumber::TypeMismatch);
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
