// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>

namespace cardwright {

/// Search in linear time and without memory of its own, whatever the text and the part are: the two-way
/// algorithm of Crochemore and Perrin. Slower than a search that bets on the part's ends; for parts that such
/// a search could take quadratic time. `text` and `part` answer the unit at an index; units compare with
/// < and ==.
template <class Text, class Part>
class TwoWayFind {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  /// The part has at least one unit.
  TwoWayFind(const Text& text, std::size_t textSize, const Part& part, std::size_t partSize)
      : m_Text(text), m_Part(part), m_TextSize(textSize), m_Size(partSize) {
    const Suffix up = MaximalSuffix(std::less<>());
    const Suffix down = MaximalSuffix(std::greater<>());
    m_Cut = up.start > down.start ? up : down;
  }

  /// Index of the first occurrence, or kNone.
  std::size_t Find() const {
    if (m_Size > m_TextSize) return kNone;
    std::size_t k = 0;
    while (k < m_Cut.start && m_Part(k) == m_Part(k + m_Cut.period)) ++k;
    return k == m_Cut.start ? FindPeriodic() : FindOther();
  }

 private:
  /// Of the part: where its right half starts, and that half's period.
  struct Suffix {
    std::size_t start, period;
  };

  // The largest suffix in an order of units.
  template <class Less>
  Suffix MaximalSuffix(Less less) const {
    std::size_t start = 0, candidate = 1, length = 0, period = 1;
    while (candidate + length < m_Size) {
      const auto next = m_Part(candidate + length);
      const auto best = m_Part(start + length);
      if (less(next, best)) {
        candidate += length + 1;
        length = 0;
        period = candidate - start;
      } else if (next == best) {
        if (++length == period) {
          candidate += period;
          length = 0;
        }
      } else {
        start = candidate++;
        length = 0;
        period = 1;
      }
    }
    return {start, period};
  }

  // The part repeats itself: what a match of its end has shown need not be looked at again.
  std::size_t FindPeriodic() const {
    std::size_t known = 0;
    for (std::size_t at = 0; at <= m_TextSize - m_Size;) {
      std::size_t k = std::max(m_Cut.start, known);
      while (k < m_Size && m_Part(k) == m_Text(at + k)) ++k;
      if (k < m_Size) {
        at += k - m_Cut.start + 1;
        known = 0;
        continue;
      }
      k = m_Cut.start;
      while (k > known && m_Part(k - 1) == m_Text(at + k - 1)) --k;
      if (k <= known) return at;
      at += m_Cut.period;
      known = m_Size - m_Cut.period;
    }
    return kNone;
  }

  std::size_t FindOther() const {
    const std::size_t step = std::max(m_Cut.start, m_Size - m_Cut.start) + 1;
    for (std::size_t at = 0; at <= m_TextSize - m_Size;) {
      std::size_t k = m_Cut.start;
      while (k < m_Size && m_Part(k) == m_Text(at + k)) ++k;
      if (k < m_Size) {
        at += k - m_Cut.start + 1;
        continue;
      }
      k = m_Cut.start;
      while (k > 0 && m_Part(k - 1) == m_Text(at + k - 1)) --k;
      if (k == 0) return at;
      at += step;
    }
    return kNone;
  }

  const Text& m_Text;
  const Part& m_Part;
  const std::size_t m_TextSize, m_Size;
  Suffix m_Cut;
};

/// Parts up to this size are searched for quickly enough by any method.
inline constexpr std::size_t kShortPart = 64;

/// First occurrence of `part` in `text`, the units of both being what `fold` makes of them; TwoWayFind's
/// kNone where there is none.
template <class View, class Fold>
std::size_t FindLinear(const View& text, const View& part, Fold fold) {
  const auto inText = [&](std::size_t k) { return fold(text[k]); };
  const auto inPart = [&](std::size_t k) { return fold(part[k]); };
  return TwoWayFind(inText, text.size(), inPart, part.size()).Find();
}

/// Likewise the last occurrence.
template <class View, class Fold>
std::size_t FindLastLinear(const View& text, const View& part, Fold fold) {
  const auto inText = [&](std::size_t k) { return fold(text[text.size() - 1 - k]); };
  const auto inPart = [&](std::size_t k) { return fold(part[part.size() - 1 - k]); };
  const std::size_t back = TwoWayFind(inText, text.size(), inPart, part.size()).Find();
  return back == static_cast<std::size_t>(-1) ? back : text.size() - part.size() - back;
}

}  // namespace cardwright
