// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cstdint>

#include "cardwright/automation/Text.h"

namespace cardwright {

namespace {

// Upper-case letters from `first` to `last`, every `step`-th one, whose lower-case letter is `offset`
// further.
struct CaseRange {
  char16_t first, last;
  int offset;
  int step;
};

constexpr CaseRange kRanges[] = {
    {u'A', u'Z', 32, 1},
    // Latin-1 and Latin Extended-A; the dotted capital I and the dotless small i are not mapped, as i and I
    // are each other's case.
    {0x00C0, 0x00D6, 32, 1},
    {0x00D8, 0x00DE, 32, 1},
    {0x0100, 0x012E, 1, 2},
    {0x0132, 0x0136, 1, 2},
    {0x0139, 0x0147, 1, 2},
    {0x014A, 0x0176, 1, 2},
    {0x0178, 0x0178, 0x00FF - 0x0178, 1},
    {0x0179, 0x017D, 1, 2},
    // Greek
    {0x0370, 0x0372, 1, 2},
    {0x0376, 0x0376, 1, 1},
    {0x0386, 0x0386, 38, 1},
    {0x0388, 0x038A, 37, 1},
    {0x038C, 0x038C, 64, 1},
    {0x038E, 0x038F, 63, 1},
    {0x0391, 0x03A1, 32, 1},
    {0x03A3, 0x03AB, 32, 1},
    {0x03D8, 0x03EE, 1, 2},
    {0x03F7, 0x03F7, 1, 1},
    {0x03FA, 0x03FA, 1, 1},
    // Cyrillic
    {0x0400, 0x040F, 80, 1},
    {0x0410, 0x042F, 32, 1},
    {0x0460, 0x0480, 1, 2},
    {0x048A, 0x04BE, 1, 2},
    {0x04C0, 0x04C0, 15, 1},
    {0x04C1, 0x04CD, 1, 2},
    {0x04D0, 0x052E, 1, 2},
};

constexpr std::size_t kMapped = 0x530;
using CaseTable = std::array<char16_t, kMapped>;

constexpr CaseTable Identity() {
  CaseTable table{};
  for (std::size_t i = 0; i < kMapped; ++i) table[i] = static_cast<char16_t>(i);
  return table;
}

constexpr CaseTable LowerTable() {
  CaseTable table = Identity();
  for (const CaseRange& range : kRanges) {
    for (int c = range.first; c <= range.last; c += range.step) {
      table[static_cast<std::size_t>(c)] = static_cast<char16_t>(c + range.offset);
    }
  }
  return table;
}

constexpr CaseTable UpperTable() {
  CaseTable table = Identity();
  for (const CaseRange& range : kRanges) {
    for (int c = range.first; c <= range.last; c += range.step) {
      table[static_cast<std::size_t>(c + range.offset)] = static_cast<char16_t>(c);
    }
  }
  table[0x03C2] = 0x03A3;  // the final sigma is a second lower-case form
  return table;
}

constexpr CaseTable kLower = LowerTable();
constexpr CaseTable kUpper = UpperTable();

template <class Map>
Text Mapped(std::u16string_view text, Map map) {
  return Text::OfSize(text.size(), [&](char16_t* to) { std::transform(text.begin(), text.end(), to, map); });
}

}  // namespace

char16_t ToLower(char16_t c) noexcept { return c < kMapped ? kLower[c] : c; }
char16_t ToUpper(char16_t c) noexcept { return c < kMapped ? kUpper[c] : c; }

Text ToLower(std::u16string_view text) {
  return Mapped(text, [](char16_t c) { return ToLower(c); });
}

Text ToUpper(std::u16string_view text) {
  return Mapped(text, [](char16_t c) { return ToUpper(c); });
}

bool EqualsNoCase(std::u16string_view a, std::u16string_view b) noexcept {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (a[i] != b[i] && ToLower(a[i]) != ToLower(b[i])) return false;
  }
  return true;
}

std::size_t HashNoCase(std::u16string_view text) noexcept {
  // FNV-1a over the folded code units.
  std::uint64_t hash = 0xCBF29CE484222325u;
  for (const char16_t c : text) hash = (hash ^ ToLower(c)) * 0x100000001B3u;
  return static_cast<std::size_t>(hash ^ (hash >> 32));
}

}  // namespace cardwright
