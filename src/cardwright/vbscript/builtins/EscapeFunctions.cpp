// SPDX-License-Identifier: MIT
#include <array>
#include <optional>

#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/builtins/BuiltinArguments.h"

// Escape and Unescape: the encoding that scripts of web pages pass texts in.
namespace cardwright::vbscript {

namespace {

constexpr std::u16string_view kHexDigits = u"0123456789ABCDEF";
constexpr std::size_t kShortSize = 3;  // "%20"
constexpr std::size_t kLongSize = 6;   // "%u20AC"

// Characters that stay as they are.
constexpr std::array<bool, 128> PlainCharacters() {
  std::array<bool, 128> plain{};
  constexpr std::u16string_view kPlain =
      u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789@*_+-./";
  for (const char16_t c : kPlain) plain[c] = true;
  return plain;
}
constexpr std::array<bool, 128> kIsPlain = PlainCharacters();

std::size_t EscapedSize(char16_t c) noexcept {
  if (c < kIsPlain.size() && kIsPlain[c]) return 1;
  return c < 0x100 ? kShortSize : kLongSize;
}

char16_t* AppendHex(char16_t* to, char16_t value, int digits) noexcept {
  while (digits-- > 0) *to++ = kHexDigits[(value >> (4 * digits)) & 0xFu];
  return to;
}

char16_t* AppendEscaped(char16_t* to, char16_t c) noexcept {
  const std::size_t size = EscapedSize(c);
  if (size == 1) {
    *to++ = c;
    return to;
  }
  *to++ = u'%';
  if (size == kShortSize) return AppendHex(to, c, 2);
  *to++ = u'u';
  return AppendHex(to, c, 4);
}

// The value of the first `count` hexadecimal digits, if there are that many.
std::optional<char16_t> HexValue(std::u16string_view digits, std::size_t count) noexcept {
  if (digits.size() < count) return {};
  unsigned value = 0;
  for (const char16_t c : digits.substr(0, count)) {
    const char16_t lower = ToLower(c);
    if (lower >= u'0' && lower <= u'9') {
      value = value * 16 + (lower - u'0');
    } else if (lower >= u'a' && lower <= u'f') {
      value = value * 16 + (lower - u'a' + 10u);
    } else {
      return {};
    }
  }
  return static_cast<char16_t>(value);
}

struct EscapedUnit {
  char16_t character;
  std::size_t size;  // of its notation
};

// The first character of the text. A percent sign that begins no escape is a character like others.
EscapedUnit FirstUnit(std::u16string_view text) noexcept {
  if (text.front() == u'%') {
    if (text.size() > 1 && text[1] == u'u') {
      if (const auto value = HexValue(text.substr(2), 4)) return {*value, kLongSize};
    } else if (const auto value = HexValue(text.substr(1), 2)) {
      return {*value, kShortSize};
    }
  }
  return {text.front(), 1};
}

std::size_t UnescapedSize(std::u16string_view text) noexcept {
  std::size_t size = 0;
  for (; !text.empty(); text.remove_prefix(FirstUnit(text).size)) ++size;
  return size;
}

// Escape(string): all but letters, digits and @*_+-./ as %XX or %uXXXX. Error 94 for Null.
Variant EscapeFunction(Context& context, Args args) {
  const std::u16string_view text = RequireText(args[0]);
  std::size_t size = 0;
  for (const char16_t c : text) size += EscapedSize(c);
  if (size == text.size()) return std::move(args[0]);
  context.CheckTextSize(size);
  return Text::OfSize(size, [&](char16_t* to) {
    for (const char16_t c : text) to = AppendEscaped(to, c);
  });
}

// Unescape(string): error 94 for Null.
Variant UnescapeFunction(Context&, Args args) {
  std::u16string_view text = RequireText(args[0]);
  const std::size_t size = UnescapedSize(text);
  if (size == text.size()) return std::move(args[0]);
  return Text::OfSize(size, [&](char16_t* to) {
    while (!text.empty()) {
      const EscapedUnit unit = FirstUnit(text);
      *to++ = unit.character;
      text.remove_prefix(unit.size);
    }
  });
}

constexpr Builtin kEscapeFunctions[] = {
    {u"Escape", EscapeFunction, 1, 1},
    {u"Unescape", UnescapeFunction, 1, 1},
};

}  // namespace

std::span<const Builtin> EscapeFunctions() { return kEscapeFunctions; }

}  // namespace cardwright::vbscript
