// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/Keywords.h"

#include <array>

namespace cardwright::vbscript {

namespace {

// In the order of TokenKind.
constexpr std::u16string_view kWords[] = {
    u"and",     u"as",     u"byref",    u"byval",   u"call",     u"case",    u"class", u"const",
    u"default", u"dim",    u"do",       u"each",    u"else",     u"elseif",  u"empty", u"end",
    u"eqv",     u"erase",  u"error",    u"exit",    u"explicit", u"false",   u"for",   u"function",
    u"get",     u"goto",   u"if",       u"imp",     u"in",       u"is",      u"let",   u"loop",
    u"me",      u"mod",    u"new",      u"next",    u"not",      u"nothing", u"null",  u"on",
    u"option",  u"or",     u"preserve", u"private", u"property", u"public",  u"redim", u"rem",
    u"resume",  u"select", u"set",      u"step",    u"stop",     u"sub",     u"then",  u"to",
    u"true",    u"until",  u"wend",     u"while",   u"with",     u"xor",
};
constexpr std::size_t kFirstKeyword = static_cast<std::size_t>(TokenKind::And);
static_assert(std::size(kWords) == kTokenKinds - kFirstKeyword);

constexpr std::size_t kShortest = 2;
constexpr std::size_t kLongest = 8;
constexpr std::size_t kSlots = 256;

// Lower case of an ASCII letter, which all characters of keywords are. Other characters may be mapped onto
// letters too; Matches rejects them.
constexpr char16_t LowerCase(char16_t c) { return c | 0x20; }

constexpr std::size_t SlotOf(std::u16string_view word) {
  const std::size_t mixed = LowerCase(word[0]) * 7u + LowerCase(word[1]) * 31u +
                            LowerCase(word[word.size() - 1]) * 3u + word.size() * 57u;
  return mixed % kSlots;
}

// Open addressing: a word is in its slot, or in the first free one after it.
constexpr auto kTable = [] {
  std::array<std::uint8_t, kSlots> table{};
  for (std::size_t i = 0; i < std::size(kWords); ++i) {
    std::size_t slot = SlotOf(kWords[i]);
    while (table[slot] != 0) slot = (slot + 1) % kSlots;
    table[slot] = static_cast<std::uint8_t>(i + 1);
  }
  return table;
}();

constexpr bool Matches(std::u16string_view word, std::u16string_view keyword) {
  if (word.size() != keyword.size()) return false;
  for (std::size_t i = 0; i < word.size(); ++i) {
    if (word[i] != keyword[i] && word[i] != keyword[i] - 0x20) return false;
  }
  return true;
}

}  // namespace

TokenKind KeywordOf(std::u16string_view word) noexcept {
  if (word.size() < kShortest || word.size() > kLongest) return TokenKind::Identifier;
  for (std::size_t slot = SlotOf(word); kTable[slot] != 0; slot = (slot + 1) % kSlots) {
    const std::size_t index = kTable[slot] - 1u;
    if (Matches(word, kWords[index])) return static_cast<TokenKind>(kFirstKeyword + index);
  }
  return TokenKind::Identifier;
}

}  // namespace cardwright::vbscript
