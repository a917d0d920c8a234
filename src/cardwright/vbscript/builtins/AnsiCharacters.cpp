// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/builtins/AnsiCharacters.h"

#include <algorithm>
#include <iterator>

namespace cardwright::vbscript {

namespace {

constexpr int kFirst = 0x80;

// Bytes 0x80 to 0x9F; every other byte is its own character. Those that the code page leaves open stay as
// they are.
constexpr char16_t kUpper[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
static_assert(std::size(kUpper) == 0x20);

}  // namespace

char16_t FromAnsi(std::uint8_t byte) noexcept {
  return byte >= kFirst && byte < kFirst + 0x20 ? kUpper[byte - kFirst] : byte;
}

std::uint8_t ToAnsi(char16_t character) noexcept {
  if (character < kFirst || (character >= 0xA0 && character <= 0xFF)) {
    return static_cast<std::uint8_t>(character);
  }
  const auto* found = std::ranges::find(kUpper, character);
  return static_cast<std::uint8_t>(found == std::end(kUpper) ? u'?' : kFirst + (found - kUpper));
}

}  // namespace cardwright::vbscript
