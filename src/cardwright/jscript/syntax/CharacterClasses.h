// SPDX-License-Identifier: MIT
#pragma once

namespace cardwright::jscript {

constexpr bool IsDigit(char16_t c) noexcept { return c >= u'0' && c <= u'9'; }
constexpr bool IsLineEnd(char16_t c) noexcept {
  return c == u'\n' || c == u'\r' || c == 0x2028 || c == 0x2029;
}
constexpr bool IsBlank(char16_t c) noexcept {
  return c == u' ' || c == u'\t' || c == u'\v' || c == u'\f' || c == 0xA0 || c == 0xFEFF || IsLineEnd(c);
}
/// Any character beyond ASCII counts as a letter. The compiler reports those that are none.
constexpr bool StartsName(char16_t c) noexcept {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_' || c == u'$' || c == u'\\' ||
         (c >= 0x80 && !IsBlank(c));
}
constexpr bool ContinuesName(char16_t c) noexcept { return StartsName(c) || IsDigit(c); }

}  // namespace cardwright::jscript
