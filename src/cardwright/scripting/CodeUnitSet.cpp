// SPDX-License-Identifier: MIT
#include "cardwright/scripting/CodeUnitSet.h"

#include <algorithm>
#include <array>

#include "cardwright/automation/Text.h"

namespace cardwright::scripting {

namespace {

constexpr char16_t kLast = 0xFFFF;

// Beyond every unit that ToUpper and ToLower change.
constexpr std::size_t kCased = 0x600;

// Equal for units that differ only in case. A unit beyond ASCII never equals one of ASCII.
constexpr char16_t Fold(char16_t unit, char16_t upper) noexcept {
  return unit >= 0x80 && upper < 0x80 ? unit : upper;
}

bool IsAsciiAlphanumeric(char16_t unit) noexcept {
  return (unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

}  // namespace

CodeUnitSet::CodeUnitSet(std::initializer_list<Range> ranges) : m_Ranges(ranges) {}

const CodeUnitSet& CodeUnitSet::Digits() {
  static const CodeUnitSet set{{u'0', u'9'}};
  return set;
}

const CodeUnitSet& CodeUnitSet::WordUnits() {
  static const CodeUnitSet set{{u'0', u'9'}, {u'A', u'Z'}, {u'_', u'_'}, {u'a', u'z'}};
  return set;
}

const CodeUnitSet& CodeUnitSet::Blanks() {
  static const CodeUnitSet set{{u'\t', u'\r'},         {u' ', u' '},           {0x00A0, 0x00A0},
                               {0x1680, 0x1680},       {0x2000, 0x200A},       {u'\u2028', u'\u2029'},
                               {u'\u202F', u'\u202F'}, {u'\u205F', u'\u205F'}, {u'\u3000', u'\u3000'}};
  return set;
}

const CodeUnitSet& CodeUnitSet::LineTerminators() {
  static const CodeUnitSet set{{u'\n', u'\n'}, {u'\r', u'\r'}, {u'\u2028', u'\u2029'}};
  return set;
}

void CodeUnitSet::Add(char16_t first, char16_t last) { m_Ranges.emplace_back(first, last); }

void CodeUnitSet::Add(const CodeUnitSet& other) {
  m_Ranges.insert(m_Ranges.end(), other.m_Ranges.begin(), other.m_Ranges.end());
}

bool CodeUnitSet::IsSingle() const {
  const std::vector<Range> ranges = Sorted();
  return ranges.size() == 1 && ranges[0].first == ranges[0].second;
}

std::vector<CodeUnitSet::Range> CodeUnitSet::Sorted() const {
  std::vector<Range> ranges = m_Ranges;
  std::ranges::sort(ranges);
  std::vector<Range> result;
  for (const Range& range : ranges) {
    if (!result.empty() && range.first <= result.back().second + 1) {
      result.back().second = std::max(result.back().second, range.second);
    } else {
      result.push_back(range);
    }
  }
  return result;
}

CodeUnitSet CodeUnitSet::Complement() const {
  CodeUnitSet result;
  int next = 0;
  for (const auto& [first, last] : Sorted()) {
    if (first > next) result.Add(static_cast<char16_t>(next), static_cast<char16_t>(first - 1));
    next = last + 1;
  }
  if (next <= kLast) result.Add(static_cast<char16_t>(next), kLast);
  return result;
}

CodeUnitSet CodeUnitSet::WithOtherCases() const {
  static const std::array<char16_t, kCased> folds = [] {
    std::array<char16_t, kCased> table{};
    for (std::size_t i = 0; i < kCased; ++i) {
      const auto unit = static_cast<char16_t>(i);
      table[i] = Fold(unit, ToUpper(unit));
    }
    return table;
  }();
  std::array<bool, kCased> isMember{};
  for (const auto& [first, last] : Sorted()) {
    for (std::size_t unit = first; unit <= last && unit < kCased; ++unit) isMember[folds[unit]] = true;
  }
  CodeUnitSet result = *this;
  for (std::size_t unit = 0; unit < kCased; ++unit) {
    if (!isMember[folds[unit]]) continue;
    const std::size_t first = unit;
    while (unit + 1 < kCased && isMember[folds[unit + 1]]) ++unit;
    result.Add(static_cast<char16_t>(first), static_cast<char16_t>(unit));
  }
  return result;
}

std::u16string CodeUnitSet::Notation() const {
  const std::vector<Range> ranges = Sorted();
  if (ranges.empty()) return u"(?!)";
  if (ranges.front() == Range{0, kLast}) return u".";
  // A set that includes the last unit has a shorter notation by its complement.
  const bool isNegated = ranges.back().second == kLast;
  std::u16string result = isNegated ? u"[^" : u"[";
  for (const auto& [first, last] : isNegated ? Complement().Sorted() : ranges) {
    result += UnitNotation(first);
    if (first != last) result += u'-' + UnitNotation(last);
  }
  return result + u']';
}

std::u16string UnitNotation(char16_t unit) {
  if (IsAsciiAlphanumeric(unit)) return std::u16string(1, unit);
  constexpr char16_t kDigits[] = u"0123456789abcdef";
  std::u16string result = u"\\x{";
  for (int shift = 12; shift >= 0; shift -= 4) result += kDigits[(unit >> shift) & 15];
  return result + u'}';
}

}  // namespace cardwright::scripting
