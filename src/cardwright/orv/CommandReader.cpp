// SPDX-License-Identifier: MIT
#include "cardwright/orv/CommandReader.h"

#include <limits>

#include "cardwright/orv/CommandError.h"

namespace cardwright::orv {

namespace {

constexpr std::u16string_view kWhite = u" \t\r\n";

bool IsWhite(char16_t c) noexcept { return kWhite.find(c) != std::u16string_view::npos; }

std::u16string_view TrimStart(std::u16string_view text) noexcept {
  while (!text.empty() && IsWhite(text.front())) text.remove_prefix(1);
  return text;
}

std::u16string_view TrimEnd(std::u16string_view text) noexcept {
  while (!text.empty() && IsWhite(text.back())) text.remove_suffix(1);
  return text;
}

std::u16string_view TrimBoth(std::u16string_view text) noexcept { return TrimEnd(TrimStart(text)); }

/// Cuts the word NEW off the end. False where the text does not end with that word.
bool CutNew(std::u16string_view& text) noexcept {
  constexpr std::u16string_view kNew = u"NEW";
  text = TrimEnd(text);
  if (text.size() < kNew.size() || !EqualsNoCase(text.substr(text.size() - kNew.size()), kNew)) return false;
  const auto before = text.substr(0, text.size() - kNew.size());
  if (!before.empty() && !IsWhite(before.back()) && before.back() != u'|' && before.back() != u'=')
    return false;
  text = before;
  return true;
}

}  // namespace

std::u16string_view CommandReader::ReadWord() noexcept {
  m_Rest = TrimStart(m_Rest);
  std::size_t length = 0;
  while (length < m_Rest.size() && !IsWhite(m_Rest[length]) && m_Rest[length] != u'|') ++length;
  const auto word = m_Rest.substr(0, length);
  m_Rest.remove_prefix(length);
  return word;
}

bool CommandReader::IsAtBar() const noexcept {
  const auto rest = TrimStart(m_Rest);
  return !rest.empty() && rest.front() == u'|';
}

std::u16string_view CommandReader::ReadPart(std::u16string_view meaning) {
  if (!IsAtBar()) Fail(Text(u"The command lacks the ") + meaning + u" between vertical bars.");
  m_Rest = TrimStart(m_Rest).substr(1);
  const std::size_t end = m_Rest.find(u'|');
  if (end == std::u16string_view::npos)
    Fail(Text(u"The command lacks the vertical bar after the ") + meaning + u".");
  const auto part = m_Rest.substr(0, end);
  m_Rest.remove_prefix(end + 1);
  return part;
}

std::u16string_view CommandReader::ReadRest() noexcept {
  const auto rest = m_Rest;
  m_Rest = {};
  return rest;
}

void CommandReader::RequireEnd() {
  const auto rest = TrimBoth(m_Rest);
  if (!rest.empty()) Fail(Text(u"The command goes on where it should end: ") + Quoted(rest) + u".");
}

CommandValue ReadValue(std::u16string_view tail) {
  const auto text = TrimBoth(tail);
  if (text.empty() || text.front() != u'|') return {text, text.empty()};
  if (text.size() < 2 || text.back() != u'|')
    Fail(u"The value begins with a vertical bar and does not end with one.");
  const auto inner = text.substr(1, text.size() - 2);
  return {inner, inner == u" "};
}

Condition ReadCondition(CommandReader& reader) {
  Condition condition;
  std::u16string_view rest;
  if (reader.IsAtBar()) {
    condition.attribute = reader.ReadPart(u"attribute name");
    rest = TrimStart(reader.ReadRest());
    if (rest.empty() || rest.front() != u'=') Fail(u"The selection lacks \"=\" after the attribute name.");
    rest.remove_prefix(1);
  } else {
    rest = reader.ReadRest();
    const std::size_t equals = rest.find(u'=');
    if (equals == std::u16string_view::npos) Fail(u"The selection lacks \"=\" after the attribute name.");
    condition.attribute = TrimBoth(rest.substr(0, equals));
    rest.remove_prefix(equals + 1);
  }
  if (!CutNew(rest)) Fail(u"The selection does not end with NEW.");
  condition.value = ReadValue(rest);
  return condition;
}

std::optional<long long> ParseWhole(std::u16string_view text) noexcept {
  text = TrimBoth(text);
  const bool negative = !text.empty() && text.front() == u'-';
  if (!text.empty() && (text.front() == u'-' || text.front() == u'+')) text.remove_prefix(1);
  if (text.empty()) return std::nullopt;
  // Counted downwards, because the least number has no positive counterpart.
  constexpr long long kLeast = std::numeric_limits<long long>::min();
  long long number = 0;
  for (const char16_t c : text) {
    if (c < u'0' || c > u'9') return std::nullopt;
    const int digit = c - u'0';
    if (number < (kLeast + digit) / 10) return std::nullopt;
    number = number * 10 - digit;
  }
  if (negative) return number;
  if (number == kLeast) return std::nullopt;
  return -number;
}

}  // namespace cardwright::orv
