// SPDX-License-Identifier: MIT
#include "cardwright/automation/DateTokens.h"

#include <algorithm>
#include <array>

#include "cardwright/automation/Text.h"

namespace cardwright {

namespace {

using Kind = DateToken::Kind;

constexpr int kEnglishLcid = 1033;

bool IsSeparator(char16_t c) noexcept { return c == u'/' || c == u'-' || c == u'.' || c == u','; }
bool IsLetter(char16_t c) noexcept { return ToLower(c) != ToUpper(c); }

template <std::size_t N>
int IndexOf(const std::array<std::u16string_view, N>& names, std::u16string_view word) noexcept {
  const auto found = std::ranges::find_if(names, [&](auto name) {
    // Short names end with a point in some languages; in the text that point is a token of its own.
    if (name.ends_with(u'.')) name.remove_suffix(1);
    return !name.empty() && EqualsNoCase(name, word);
  });
  return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

std::optional<DateToken> NameIn(const Locale& locale, std::u16string_view word) noexcept {
  for (const auto* months : {&locale.months, &locale.monthsInDates, &locale.shortMonths}) {
    if (const int month = IndexOf(*months, word); month >= 0) return DateToken{Kind::Month, month + 1};
  }
  for (const auto* days : {&locale.weekdays, &locale.shortWeekdays}) {
    if (IndexOf(*days, word) >= 0) return DateToken{Kind::Weekday};
  }
  if (!locale.am.empty() && EqualsNoCase(word, locale.am)) return DateToken{Kind::Am};
  if (!locale.pm.empty() && EqualsNoCase(word, locale.pm)) return DateToken{Kind::Pm};
  return std::nullopt;
}

std::optional<DateToken> NameToken(const Locale& locale, std::u16string_view word) noexcept {
  if (auto token = NameIn(locale, word)) return token;
  if (EqualsNoCase(word, u"a")) return DateToken{Kind::Am};
  if (EqualsNoCase(word, u"p")) return DateToken{Kind::Pm};
  return NameIn(*Locale::Find(kEnglishLcid), word);
}

// Whether the country's long dates have the word between their parts, as the "de" of "21 de noviembre".
bool IsFiller(const Locale& locale, std::u16string_view word) noexcept {
  std::u16string_view rest = locale.longDate;
  for (std::size_t open = rest.find(u'\''); open != rest.npos; open = rest.find(u'\'')) {
    rest.remove_prefix(open + 1);
    const std::size_t close = std::min(rest.find(u'\''), rest.size());
    if (EqualsNoCase(rest.substr(0, close), word)) return true;
    rest.remove_prefix(std::min(close + 1, rest.size()));
  }
  return false;
}

DateToken TakeNumber(std::u16string_view& text) noexcept {
  DateToken token{Kind::Number};
  for (; !text.empty() && IsDigit(text.front()); text.remove_prefix(1)) {
    token.value = std::min(token.value * 10 + (text.front() - u'0'), 99999);
    ++token.digits;
  }
  return token;
}

std::u16string_view TakeWord(std::u16string_view& text) noexcept {
  const auto end = std::ranges::find_if_not(text, IsLetter);
  const std::u16string_view word = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(word.size());
  return word;
}

// Reads on to the next token; false where there is none to be made.
bool TakeToken(std::u16string_view& text, const Locale& locale, std::vector<DateToken>& tokens) {
  const char16_t first = text.front();
  if (IsDigit(first)) {
    tokens.push_back(TakeNumber(text));
  } else if (first == u':' || IsSeparator(first)) {
    tokens.push_back({first == u':' ? Kind::Colon : Kind::Separator, 0, 0, first});
    text.remove_prefix(1);
  } else {
    const std::u16string_view word = TakeWord(text);
    if (const auto token = NameToken(locale, word)) {
      tokens.push_back(*token);
    } else {
      return IsFiller(locale, word);
    }
  }
  return true;
}

}  // namespace

std::optional<std::vector<DateToken>> ReadDateTokens(std::u16string_view text, const Locale& locale) {
  std::vector<DateToken> tokens;
  for (text = Trim(text); !text.empty(); text = Trim(text)) {
    if (!TakeToken(text, locale, tokens)) return std::nullopt;
  }
  return tokens;
}

}  // namespace cardwright
