// SPDX-License-Identifier: MIT
#include <cstdint>
#include <cstring>

#include "cardwright/automation/Text.h"
#include "cardwright/automation/TwoWayFind.h"

namespace cardwright {

namespace {

// Positions compared together: a loop with a fixed count that compilers vectorise, as it is too long to
// unroll.
constexpr std::size_t kBlock = 32;
// After so many comparisons for each character the search switches to the linear algorithm.
constexpr std::size_t kMostLooks = 16;

bool AreEqual(const char16_t* a, const char16_t* b, std::size_t count) noexcept {
  return std::memcmp(a, b, count * sizeof(char16_t)) == 0;
}

/// Exact search: a candidate is a position where the first and the last character of the part match.
struct Exact {
  explicit Exact(std::u16string_view wanted) noexcept
      : part(wanted), first(part.front()), last(part.back()) {}

  std::uint16_t IsCandidate(char16_t front, char16_t back) const noexcept {
    return static_cast<std::uint16_t>((front == first) & (back == last));
  }
  bool IsMatch(const char16_t* place) const noexcept { return AreEqual(place, part.data(), part.size()); }
  static char16_t Fold(char16_t c) noexcept { return c; }

  std::u16string_view part;
  char16_t first, last;
};

/// The characters that fold to the same lower-case one: there are never more than two.
struct Folded {
  explicit Folded(char16_t c) noexcept : lower(ToLower(c)), upper(ToUpper(lower)) {
    if (ToLower(upper) != lower) upper = lower;
  }
  std::uint16_t Holds(char16_t c) const noexcept {
    return static_cast<std::uint16_t>((c == lower) | (c == upper));
  }

  char16_t lower, upper;
};

struct NoCase {
  explicit NoCase(std::u16string_view wanted) noexcept
      : part(wanted), first(part.front()), last(part.back()) {}

  std::uint16_t IsCandidate(char16_t front, char16_t back) const noexcept {
    return static_cast<std::uint16_t>(first.Holds(front) & last.Holds(back));
  }
  bool IsMatch(const char16_t* place) const noexcept { return EqualsNoCase({place, part.size()}, part); }
  static char16_t Fold(char16_t c) noexcept { return ToLower(c); }

  std::u16string_view part;
  Folded first, last;
};

template <class Matcher>
bool HasCandidate(const char16_t* fronts, const char16_t* backs, const Matcher& matcher) noexcept {
  std::uint16_t any = 0;
  for (std::size_t i = 0; i < kBlock; ++i) {
    any = static_cast<std::uint16_t>(any | matcher.IsCandidate(fronts[i], backs[i]));
  }
  return any != 0;
}

template <class Matcher>
std::size_t FindLinearFrom(std::u16string_view text, std::u16string_view part, std::size_t from,
                           const Matcher& matcher) noexcept {
  const std::size_t found = FindLinear(text.substr(from), part, [&](char16_t c) { return matcher.Fold(c); });
  return found == text.npos ? found : from + found;
}

template <class Matcher>
std::size_t FindWith(std::u16string_view text, std::u16string_view part, std::size_t from) noexcept {
  if (from > text.size() || part.size() > text.size() - from) return std::u16string_view::npos;
  if (part.empty()) return from;
  const Matcher matcher(part);
  // The ends of a long part match again and again, and the rest does not: switch to the linear algorithm.
  const std::size_t start = from;
  std::size_t compared = 0;
  const char16_t* const fronts = text.data();
  const char16_t* const backs = fronts + part.size() - 1;
  const std::size_t end = text.size() - part.size() + 1;
  while (from < end) {
    const bool whole = end - from >= kBlock;
    const std::size_t stop = whole ? from + kBlock : end;
    if (whole && !HasCandidate(fronts + from, backs + from, matcher)) {
      from = stop;
      continue;
    }
    for (; from < stop; ++from) {
      if (!matcher.IsCandidate(fronts[from], backs[from])) continue;
      if (matcher.IsMatch(fronts + from)) return from;
      if (part.size() <= kShortPart) continue;
      compared += part.size();
      if (compared > kMostLooks * (from - start) + kBlock * part.size())
        return FindLinearFrom(text, part, from + 1, matcher);
    }
  }
  return std::u16string_view::npos;
}

}  // namespace

std::size_t Find(std::u16string_view text, std::u16string_view part, std::size_t from) noexcept {
  return FindWith<Exact>(text, part, from);
}

std::size_t FindNoCase(std::u16string_view text, std::u16string_view part, std::size_t from) noexcept {
  return FindWith<NoCase>(text, part, from);
}

}  // namespace cardwright
