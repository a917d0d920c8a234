// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

/// Classes of the characters of a source.
namespace cardwright::vbscript {

namespace detail {

enum CharacterClass : std::uint8_t { kLetter = 1, kNamePart = 2, kDigit = 4, kHexDigit = 8, kBlank = 16 };

inline constexpr auto kClasses = [] {
  std::array<std::uint8_t, 128> classes{};
  for (char16_t c = u'0'; c <= u'9'; ++c) classes[c] = kNamePart | kDigit | kHexDigit;
  for (char16_t c = u'A'; c <= u'Z'; ++c) classes[c] = classes[c + 0x20] = kLetter | kNamePart;
  for (char16_t c = u'A'; c <= u'F'; ++c) classes[c] = classes[c + 0x20] = kLetter | kNamePart | kHexDigit;
  classes[u'_'] = kNamePart;
  classes[u' '] = classes[u'\t'] = classes[u'\v'] = classes[u'\f'] = kBlank;
  return classes;
}();

constexpr bool Has(char16_t c, CharacterClass wanted) { return c < 128 && (kClasses[c] & wanted) != 0; }

}  // namespace detail

/// Letters beyond ASCII that names may contain: those of the European, Middle Eastern and East Asian scripts.
/// Typographic quotes, dashes and blanks, which pasted code often contains, are no letters.
constexpr bool IsForeignLetter(char16_t c) {
  if (c < 0xAA) return false;
  if (c <= 0xFF) return c == 0xAA || c == 0xB5 || c == 0xBA || (c >= 0xC0 && c != 0xD7 && c != 0xF7);
  return c < 0x2000 || (c >= 0x3041 && c <= 0x30FF) || (c >= 0x3400 && c <= 0x9FFF) ||
         (c >= 0xAC00 && c <= 0xD7A3);
}
constexpr bool IsLetter(char16_t c) { return detail::Has(c, detail::kLetter) || IsForeignLetter(c); }
constexpr bool IsNamePart(char16_t c) { return detail::Has(c, detail::kNamePart) || IsForeignLetter(c); }
constexpr bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }
constexpr bool IsOctalDigit(char16_t c) { return c >= u'0' && c <= u'7'; }
constexpr bool IsHexDigit(char16_t c) { return detail::Has(c, detail::kHexDigit); }
constexpr bool IsBlank(char16_t c) { return detail::Has(c, detail::kBlank); }
constexpr bool IsLineEnd(char16_t c) { return c == u'\n' || c == u'\r'; }

}  // namespace cardwright::vbscript
