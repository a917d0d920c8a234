// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/builtins/TextCompare.h"

#include <algorithm>
#include <bit>

#include "cardwright/automation/TwoWayFind.h"
#include "cardwright/vbscript/builtins/BuiltinArguments.h"

namespace cardwright::vbscript {

namespace {

int Sign(int value) noexcept { return (value > 0) - (value < 0); }

int CompareFolded(std::u16string_view a, std::u16string_view b) noexcept {
  const std::size_t common = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < common; ++i) {
    if (a[i] == b[i]) continue;
    const int difference = int{ToLower(a[i])} - int{ToLower(b[i])};
    if (difference != 0) return Sign(difference);
  }
  return (a.size() > b.size()) - (a.size() < b.size());
}

}  // namespace

CompareMode CompareModeOf(Args args, std::size_t index) {
  const std::int32_t mode = LongOr(args, index, 0);
  if (mode != 0 && mode != 1) Raise(ErrorNumber::InvalidCall);
  return static_cast<CompareMode>(mode);
}

static_assert(std::endian::native == std::endian::little,
              "the memory of a text is its bytes, low byte first");

std::string_view BytesOf(std::u16string_view text) noexcept {
  return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t)};
}

std::size_t FindBytes(std::u16string_view text, std::u16string_view part, std::size_t from,
                      CompareMode mode) noexcept {
  if (part.empty()) return from;
  if (mode == CompareMode::Binary) {
    const std::string_view bytes = BytesOf(text), wanted = BytesOf(part);
    if (wanted.size() <= kShortPart) return bytes.find(wanted, from);
    const std::size_t found = FindLinear(bytes.substr(from), wanted, [](char c) { return c; });
    return found == bytes.npos ? found : from + found;
  }
  const std::size_t found = Find(text, part, (from + 1) / sizeof(char16_t), mode);
  return found == text.npos ? found : found * sizeof(char16_t);
}

std::size_t FindLast(std::u16string_view text, std::u16string_view part, CompareMode mode) noexcept {
  if (part.size() > text.size()) return std::u16string_view::npos;
  const bool isLong = part.size() > kShortPart;
  if (mode == CompareMode::Binary)
    return isLong ? FindLastLinear(text, part, [](char16_t c) { return c; }) : text.rfind(part);
  if (isLong) return FindLastLinear(text, part, [](char16_t c) { return ToLower(c); });
  for (std::size_t at = text.size() - part.size() + 1; at-- > 0;) {
    if (EqualsNoCase(text.substr(at, part.size()), part)) return at;
  }
  return std::u16string_view::npos;
}

int Compare(std::u16string_view a, std::u16string_view b, CompareMode mode) noexcept {
  return mode == CompareMode::Text ? CompareFolded(a, b) : Sign(a.compare(b));
}

}  // namespace cardwright::vbscript
