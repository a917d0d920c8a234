// SPDX-License-Identifier: MIT
#include "cardwright/automation/DateText.h"

#include <vector>

#include "cardwright/automation/Calendar.h"
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/DateClock.h"
#include "cardwright/automation/DateTokens.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"

namespace cardwright {

namespace {

using Kind = DateToken::Kind;
using Token = DateToken;

struct DayParts {
  std::vector<Token> numbers;
  int month = 0;  // of a name; 0 for none
  char16_t separator = u'\0';
};

// Whether a point may end the text here: after a short name, or after a number where days are written with
// points.
bool EndsInPoint(const std::vector<Token>& tokens, const Locale& locale) noexcept {
  if (tokens.size() < 2 || !tokens.back().IsPoint()) return false;
  const Token& before = tokens[tokens.size() - 2];
  return before.IsNumber() ? locale.dateSeparator == u'.' : before.kind != Kind::Separator;
}

// The text without its time: names, numbers, and at most one separator between two of them.
std::optional<DayParts> ReadDayParts(const std::vector<Token>& tokens, const Locale& locale) {
  DayParts parts;
  const std::size_t count = tokens.size() - (EndsInPoint(tokens, locale) ? 1 : 0);
  for (std::size_t i = 0; i < count; ++i) {
    const Token& token = tokens[i];
    const bool isEdge = i == 0 || i + 1 == count;
    switch (token.kind) {
      case Kind::Number: parts.numbers.push_back(token); break;
      case Kind::Month:
        if (parts.month != 0) return std::nullopt;
        parts.month = token.value;
        break;
      case Kind::Weekday: break;
      case Kind::Separator:
        // A short name may end in a point, after which the comma or the dash is the separator.
        if (isEdge || (tokens[i - 1].kind == Kind::Separator && tokens[i - 1].separator != u'.')) {
          return std::nullopt;
        }
        parts.separator = token.separator;
        break;
      default: return std::nullopt;
    }
  }
  return parts;
}

int FullYear(const Token& token) noexcept {
  if (token.digits > 2) return token.value;
  return token.value < 30 ? 2000 + token.value : 1900 + token.value;
}

bool LooksLikeYear(const Token& token) noexcept { return token.digits > 2 || token.value > 31; }

std::optional<double> FirstOf(std::initializer_list<std::optional<double>> readings) {
  for (const auto& reading : readings) {
    if (reading) return reading;
  }
  return std::nullopt;
}

std::optional<double> FromNamedMonth(const DayParts& parts) {
  const auto& numbers = parts.numbers;
  const int month = parts.month;
  if (numbers.size() == 1) {
    const auto ofYear = DaysOf(FullYear(numbers[0]), month, 1);
    if (LooksLikeYear(numbers[0])) return ofYear;
    return FirstOf({DaysOf(CurrentYear(), month, numbers[0].value), ofYear});
  }
  if (numbers.size() != 2) return std::nullopt;
  const auto dayFirst = DaysOf(FullYear(numbers[1]), month, numbers[0].value);
  const auto yearFirst = DaysOf(FullYear(numbers[0]), month, numbers[1].value);
  if (LooksLikeYear(numbers[0])) return yearFirst;
  // "29-Feb-01" is no day of 2001, but the first of February 2029.
  return LooksLikeYear(numbers[1]) ? dayFirst : FirstOf({dayFirst, yearFirst});
}

std::optional<double> FromThreeNumbers(const std::vector<Token>& n, Locale::DateOrder order) {
  const auto monthDayYear = [&] { return DaysOf(FullYear(n[2]), n[0].value, n[1].value); };
  const auto dayMonthYear = [&] { return DaysOf(FullYear(n[2]), n[1].value, n[0].value); };
  const auto yearMonthDay = [&] { return DaysOf(FullYear(n[0]), n[1].value, n[2].value); };
  const auto yearDayMonth = [&] { return DaysOf(FullYear(n[0]), n[2].value, n[1].value); };
  if (n[0].digits > 2) return FirstOf({yearMonthDay(), yearDayMonth()});
  if (order == Locale::DateOrder::MonthDayYear)
    return FirstOf({monthDayYear(), dayMonthYear(), yearMonthDay()});
  if (order == Locale::DateOrder::YearMonthDay && n[2].digits <= 2) {
    return FirstOf({yearMonthDay(), dayMonthYear(), monthDayYear()});
  }
  return FirstOf({dayMonthYear(), monthDayYear(), yearMonthDay()});
}

std::optional<double> FromTwoNumbers(const std::vector<Token>& n, Locale::DateOrder order) {
  const auto monthYear = DaysOf(FullYear(n[1]), n[0].value, 1);
  const auto yearMonth = DaysOf(FullYear(n[0]), n[1].value, 1);
  if (LooksLikeYear(n[1])) return monthYear;
  if (LooksLikeYear(n[0])) return yearMonth;
  const auto monthDay = DaysOf(CurrentYear(), n[0].value, n[1].value);
  const auto dayMonth = DaysOf(CurrentYear(), n[1].value, n[0].value);
  if (order == Locale::DateOrder::DayMonthYear) return FirstOf({dayMonth, monthDay, monthYear, yearMonth});
  return FirstOf({monthDay, dayMonth, monthYear, yearMonth});
}

// Whether two numbers with this separator are a day and a month. A decimal or group separator makes them one
// number.
bool SeparatesTwo(char16_t separator, const std::vector<Token>& n, const Locale& locale) noexcept {
  if (separator == u'/' || separator == u'-' || separator == locale.dateSeparator) return true;
  if (LooksLikeYear(n[0]) || LooksLikeYear(n[1])) return false;
  if (separator == u',') return locale.decimal != u',';
  return separator == u'\0' && locale.group != u'\u00A0';
}

// Three numbers with points are a date except in month-first locales, where they can only be a time.
bool SeparatesThree(const DayParts& parts, const Locale& locale) noexcept {
  return parts.separator != u'.' || locale.dateOrder != Locale::DateOrder::MonthDayYear;
}

std::optional<double> ReadDay(const std::vector<Token>& tokens, const Locale& locale) {
  const auto parts = ReadDayParts(tokens, locale);
  if (!parts) return std::nullopt;
  const auto& numbers = parts->numbers;
  if (parts->month != 0) return FromNamedMonth(*parts);
  if (numbers.size() == 3 && SeparatesThree(*parts, locale)) {
    return FromThreeNumbers(numbers, locale.dateOrder);
  }
  if (numbers.size() != 2 || !SeparatesTwo(parts->separator, numbers, locale)) return std::nullopt;
  return FromTwoNumbers(numbers, locale.dateOrder);
}

std::optional<Date> WithClock(const std::optional<DateClock>& clock, const Locale& locale) {
  if (!clock) return std::nullopt;
  if (clock->rest.empty()) return Join(0, clock->second);
  const auto days = ReadDay(clock->rest, locale);
  return days ? std::optional(Join(*days, clock->second)) : std::nullopt;
}

std::optional<Date> DayAlone(const std::vector<Token>& tokens, const Locale& locale) {
  const auto days = ReadDay(tokens, locale);
  return days ? std::optional(Date{*days}) : std::nullopt;
}

}  // namespace

std::optional<Date> ReadDateText(std::u16string_view text, const Locale& locale) {
  const auto tokens = ReadDateTokens(text, locale);
  if (!tokens || tokens->empty()) return std::nullopt;
  const auto plain = HasClock(*tokens) ? WithClock(TakeClock(*tokens), locale) : DayAlone(*tokens, locale);
  return plain ? plain : WithClock(TakeDottedClock(*tokens), locale);
}

Date ToDate(const Variant& value) {
  const Variant& plain = value.Deref();
  if (plain.IsObject()) return ToDate(DefaultValue(plain));
  if (plain.IsString()) {
    const auto date = ReadDateText(plain.StringView(), Locale::Current());
    if (!date) Raise(ErrorNumber::TypeMismatch);
    return *date;
  }
  const Date date{ToDouble(plain)};
  if (!IsDateRange(date.days)) Raise(ErrorNumber::Overflow);
  return date;
}

bool IsDate(const Variant& value) noexcept {
  return BestEffortOr(false, [&] {
    const Variant plain = DefaultValue(value);
    if (plain.IsString()) return ReadDateText(plain.StringView(), Locale::Current()).has_value();
    return plain.Type() == VarType::Date;
  });
}

}  // namespace cardwright
