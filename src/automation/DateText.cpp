#include "automation/DateText.h"

#include <algorithm>
#include <array>
#include <vector>

#include "automation/Calendar.h"
#include "automation/Conversions.h"
#include "automation/Errors.h"
#include "automation/Object.h"

namespace cardwright {

namespace {

enum class Kind { Number, Month, Weekday, Am, Pm, Separator, Colon };

struct Token {
  Kind kind;
  int value = 0;  // of a number or a month
  std::size_t digits = 0;
  char16_t separator = u'\0';
};

bool IsDigit(char16_t c) noexcept { return c >= u'0' && c <= u'9'; }
bool IsSeparator(char16_t c) noexcept { return c == u'/' || c == u'-' || c == u'.' || c == u','; }
bool IsLetter(char16_t c) noexcept { return ToLower(c) != ToUpper(c); }

template <std::size_t N>
int IndexOf(const std::array<std::u16string_view, N>& names, std::u16string_view word) noexcept {
  const auto found = std::ranges::find_if(names, [&](auto name) {
    // Short names carry a point in some languages, which the text's own point stands for.
    if (name.ends_with(u'.')) name.remove_suffix(1);
    return !name.empty() && EqualsNoCase(name, word);
  });
  return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

std::optional<Token> NameIn(const Locale& locale, std::u16string_view word) noexcept {
  for (const auto* months : {&locale.months, &locale.shortMonths}) {
    if (const int month = IndexOf(*months, word); month >= 0) return Token{Kind::Month, month + 1};
  }
  for (const auto* days : {&locale.weekdays, &locale.shortWeekdays}) {
    if (IndexOf(*days, word) >= 0) return Token{Kind::Weekday};
  }
  if (!locale.am.empty() && EqualsNoCase(word, locale.am)) return Token{Kind::Am};
  if (!locale.pm.empty() && EqualsNoCase(word, locale.pm)) return Token{Kind::Pm};
  return std::nullopt;
}

std::optional<Token> NameToken(const Locale& locale, std::u16string_view word) noexcept {
  if (auto token = NameIn(locale, word)) return token;
  if (EqualsNoCase(word, u"a")) return Token{Kind::Am};
  if (EqualsNoCase(word, u"p")) return Token{Kind::Pm};
  return NameIn(*Locale::Find(u"en-us"), word);
}

// Reads one token from the front of `text`, which is not empty and does not start with a blank.
std::optional<Token> TakeToken(std::u16string_view& text, const Locale& locale) noexcept {
  std::size_t length = 1;
  std::optional<Token> token;
  if (IsDigit(text.front())) {
    int value = 0;
    for (length = 0; length < text.size() && IsDigit(text[length]); ++length) {
      value = std::min(value * 10 + (text[length] - u'0'), 99999);
    }
    token = Token{Kind::Number, value, length};
  } else if (text.front() == u':') {
    token = Token{Kind::Colon};
  } else if (IsSeparator(text.front())) {
    token = Token{Kind::Separator, 0, 0, text.front()};
  } else {
    while (length < text.size() && IsLetter(text[length])) ++length;
    token = NameToken(locale, text.substr(0, length));
  }
  text.remove_prefix(length);
  return token;
}

std::optional<std::vector<Token>> Tokens(std::u16string_view text, const Locale& locale) {
  std::vector<Token> tokens;
  for (text = Trim(text); !text.empty(); text = Trim(text)) {
    const auto token = TakeToken(text, locale);
    if (!token) return std::nullopt;
    tokens.push_back(*token);
  }
  return tokens;
}

bool IsMarker(const Token& token) noexcept { return token.kind == Kind::Am || token.kind == Kind::Pm; }

// Second of the day of the clock time that starts at `tokens[at]`, which it takes out; none where there is no
// clock time, -1 where it is impossible.
std::optional<int> TakeClock(std::vector<Token>& tokens, std::size_t at) {
  std::array<int, 3> parts{tokens[at].value, 0, 0};
  std::size_t count = 1;
  std::size_t end = at + 1;
  while (count < 3 && end + 1 < tokens.size() && tokens[end].kind == Kind::Colon &&
         tokens[end + 1].kind == Kind::Number) {
    parts[count++] = tokens[end + 1].value;
    end += 2;
  }
  const bool hasMarker = end < tokens.size() && IsMarker(tokens[end]);
  if (count == 1 && !hasMarker) return std::nullopt;
  if (hasMarker) {
    if (parts[0] > 12) return -1;
    parts[0] = parts[0] % 12 + (tokens[end].kind == Kind::Pm ? 12 : 0);
    ++end;
  }
  tokens.erase(tokens.begin() + static_cast<std::ptrdiff_t>(at),
               tokens.begin() + static_cast<std::ptrdiff_t>(end));
  if (parts[0] > 23 || parts[1] > 59 || parts[2] > 59) return -1;
  return (parts[0] * 60 + parts[1]) * 60 + parts[2];
}

// Takes the first clock time of the text out of the tokens.
std::optional<int> TakeFirstClock(std::vector<Token>& tokens) {
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].kind != Kind::Number) continue;
    if (const auto seconds = TakeClock(tokens, i)) return seconds;
  }
  return std::nullopt;
}

struct DayParts {
  std::vector<Token> numbers;
  int month = 0;  // of a name; 0 for none
  char16_t separator = u'\0';
};

// What is left when the clock time is out: names, numbers, and at most one separator between two of them.
std::optional<DayParts> ReadDayParts(const std::vector<Token>& tokens) {
  DayParts parts;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    const Token& token = tokens[i];
    const bool isEdge = i == 0 || i + 1 == tokens.size();
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

std::optional<double> FromNamedMonth(const DayParts& parts) {
  const auto& numbers = parts.numbers;
  if (numbers.size() == 1) {
    if (LooksLikeYear(numbers[0])) return DaysOf(FullYear(numbers[0]), parts.month, 1);
    return DaysOf(CurrentYear(), parts.month, numbers[0].value);
  }
  if (numbers.size() != 2) return std::nullopt;
  const bool yearFirst = LooksLikeYear(numbers[0]);
  const Token& year = numbers[yearFirst ? 0 : 1];
  const Token& day = numbers[yearFirst ? 1 : 0];
  return DaysOf(FullYear(year), parts.month, day.value);
}

std::optional<double> FirstOf(std::initializer_list<std::optional<double>> readings) {
  for (const auto& reading : readings) {
    if (reading) return reading;
  }
  return std::nullopt;
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
  if (LooksLikeYear(n[1])) return DaysOf(FullYear(n[1]), n[0].value, 1);
  if (LooksLikeYear(n[0])) return DaysOf(FullYear(n[0]), n[1].value, 1);
  const auto monthDay = DaysOf(CurrentYear(), n[0].value, n[1].value);
  const auto dayMonth = DaysOf(CurrentYear(), n[1].value, n[0].value);
  if (order == Locale::DateOrder::DayMonthYear) return FirstOf({dayMonth, monthDay});
  return FirstOf({monthDay, dayMonth});
}

std::optional<double> ReadDay(const std::vector<Token>& tokens, const Locale& locale) {
  const auto parts = ReadDayParts(tokens);
  if (!parts) return std::nullopt;
  if (parts->month != 0) return FromNamedMonth(*parts);
  if (parts->numbers.size() == 3) return FromThreeNumbers(parts->numbers, locale.dateOrder);
  if (parts->numbers.size() != 2) return std::nullopt;
  // "1.5" and "1,5" are numbers before they are days, unless days are written so.
  const bool isDay =
      parts->separator == u'/' || parts->separator == u'-' || parts->separator == locale.dateSeparator;
  return isDay ? FromTwoNumbers(parts->numbers, locale.dateOrder) : std::nullopt;
}

}  // namespace

std::optional<Date> ReadDateText(std::u16string_view text, const Locale& locale) {
  auto tokens = Tokens(text, locale);
  if (!tokens || tokens->empty()) return std::nullopt;
  const auto seconds = TakeFirstClock(*tokens);
  if (seconds == -1) return std::nullopt;
  if (tokens->empty()) return Join(0, *seconds);
  const auto days = ReadDay(*tokens, locale);
  if (!days) return std::nullopt;
  return Join(*days, seconds.value_or(0));
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
  return AttemptOr(false, [&] {
    const Variant plain = DefaultValue(value);
    if (plain.IsString()) return ReadDateText(plain.StringView(), Locale::Current()).has_value();
    return plain.Type() == VarType::Date;
  });
}

}  // namespace cardwright
