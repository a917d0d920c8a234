// SPDX-License-Identifier: MIT
#include <cstdint>

#include "cardwright/automation/Text.h"

namespace cardwright {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsHighSurrogate(char16_t c) noexcept { return (c & 0xFC00) == 0xD800; }
bool IsLowSurrogate(char16_t c) noexcept { return (c & 0xFC00) == 0xDC00; }

// What a first byte requires: how many bytes follow, and the range of the second byte, which excludes
// overlong forms, surrogates and numbers beyond U+10FFFF.
struct Sequence {
  int tail = 0;
  unsigned char low = 0x80;
  unsigned char high = 0xBF;
  char32_t bits = kReplacement;
};

Sequence SequenceOf(unsigned char first) noexcept {
  if (first >= 0xC2 && first <= 0xDF) return {.tail = 1, .bits = first & 0x1Fu};
  if (first == 0xE0) return {.tail = 2, .low = 0xA0, .bits = 0};
  if (first == 0xED) return {.tail = 2, .high = 0x9F, .bits = 0xD};
  if (first >= 0xE1 && first <= 0xEF) return {.tail = 2, .bits = first & 0x0Fu};
  if (first == 0xF0) return {.tail = 3, .low = 0x90, .bits = 0};
  if (first >= 0xF1 && first <= 0xF3) return {.tail = 3, .bits = first & 0x07u};
  if (first == 0xF4) return {.tail = 3, .high = 0x8F, .bits = 4};
  return {};
}

// Next code point of `utf8` from `position` on, which it moves past the bytes used.
char32_t Decode(std::string_view utf8, std::size_t& position) noexcept {
  const auto first = static_cast<unsigned char>(utf8[position++]);
  if (first < 0x80) return first;
  Sequence sequence = SequenceOf(first);
  for (int i = 0; i < sequence.tail; ++i) {
    if (position == utf8.size()) return kReplacement;
    const auto next = static_cast<unsigned char>(utf8[position]);
    if (next < sequence.low || next > sequence.high) return kReplacement;
    sequence.low = 0x80;
    sequence.high = 0xBF;
    sequence.bits = (sequence.bits << 6) | (next & 0x3Fu);
    ++position;
  }
  return sequence.bits;
}

void AppendUtf8(std::string& utf8, char32_t c) {
  const auto tail = [&](int shift) { utf8 += static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
  if (c < 0x80) {
    utf8 += static_cast<char>(c);
  } else if (c < 0x800) {
    utf8 += static_cast<char>(0xC0 | (c >> 6));
    tail(0);
  } else if (c < 0x10000) {
    utf8 += static_cast<char>(0xE0 | (c >> 12));
    tail(6);
    tail(0);
  } else {
    utf8 += static_cast<char>(0xF0 | (c >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

}  // namespace

Text Text::FromUtf8(std::string_view utf8) {
  std::u16string characters;
  characters.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const char32_t c = Decode(utf8, i);
    if (c < 0x10000) {
      characters += static_cast<char16_t>(c);
    } else {
      characters += static_cast<char16_t>(0xD7C0 + (c >> 10));
      characters += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
    }
  }
  return Text(characters);
}

std::string Text::ToUtf8() const {
  const std::u16string_view view = View();
  std::string utf8;
  utf8.reserve(view.size());
  for (std::size_t i = 0; i < view.size(); ++i) {
    const char16_t c = view[i];
    if (IsHighSurrogate(c) && i + 1 < view.size() && IsLowSurrogate(view[i + 1])) {
      const char32_t high = static_cast<char32_t>(c - 0xD800) << 10;
      AppendUtf8(utf8, 0x10000 + high + (view[++i] - 0xDC00u));
    } else {
      AppendUtf8(utf8, IsHighSurrogate(c) || IsLowSurrogate(c) ? kReplacement : char32_t{c});
    }
  }
  return utf8;
}

}  // namespace cardwright
