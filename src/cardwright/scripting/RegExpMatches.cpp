// SPDX-License-Identifier: MIT
#include "cardwright/scripting/RegExpMatches.h"

#include <algorithm>

#include "cardwright/automation/Enumerators.h"
#include "cardwright/scripting/RegExpProgram.h"

namespace cardwright::scripting {

namespace {

// Limit of the numbers of one search: a quarter of a gigabyte.
constexpr std::size_t kMaxSpans = std::size_t{1} << 26;
constexpr std::uint32_t kUnset = ~std::uint32_t{0};

// Error 5 for a place outside a collection.
std::size_t CheckedIndex(std::int32_t index, std::int32_t count) {
  if (index < 0 || index >= count) Raise(ErrorNumber::InvalidCall);
  return static_cast<std::size_t>(index);
}

}  // namespace

void RegExpSpans::Add(std::span<const std::size_t> spans) {
  const std::size_t needed = m_Spans.size() + spans.size();
  if (needed > kMaxSpans) Raise(ErrorNumber::OutOfMemory);
  if (needed > m_Spans.capacity()) {
    const std::size_t capacity = std::max(needed, m_Spans.capacity() * 2);
    m_Memory.Grow((capacity - m_Spans.capacity()) * sizeof(std::uint32_t));
    m_Spans.reserve(capacity);
  }
  // Texts are shorter than 2^32, and the largest number means "none" in both types.
  for (const std::size_t place : spans) m_Spans.push_back(static_cast<std::uint32_t>(place));
}

Variant RegExpSpans::Value(std::size_t match, std::size_t group) const {
  const std::size_t at = match * Width() + group * 2;
  if (m_Spans[at] == kUnset) return {};
  return m_Text.View().substr(m_Spans[at], m_Spans[at + 1] - m_Spans[at]);
}

Variant RegExpSubMatches::Item(std::int32_t index) const {
  return m_Matches->Value(m_Match, CheckedIndex(index, Count()) + 1);
}

std::unique_ptr<Enumerator> RegExpSubMatches::Enumerate() {
  return std::make_unique<ItemEnumerator<RegExpSubMatches>>(*this);
}

const MemberTable& RegExpSubMatches::Members() const {
  static constexpr Member kMembers[] = {
      Property<&RegExpSubMatches::Item>(u"Item"),
      Property<&RegExpSubMatches::Count>(u"Count"),
  };
  static const MemberTable table(kMembers, u"Item");
  return table;
}

Ref<RegExpSubMatches> RegExpMatch::SubMatches() { return MakeRef<RegExpSubMatches>(m_Matches, m_Match); }

const MemberTable& RegExpMatch::Members() const {
  static constexpr Member kMembers[] = {
      Property<&RegExpMatch::Value>(u"Value"),
      Property<&RegExpMatch::FirstIndex>(u"FirstIndex"),
      Property<&RegExpMatch::Length>(u"Length"),
      Property<&RegExpMatch::SubMatches>(u"SubMatches"),
  };
  static const MemberTable table(kMembers, u"Value");
  return table;
}

Ref<RegExpMatch> RegExpMatches::Item(std::int32_t index) {
  const std::size_t place = CheckedIndex(index, Count());
  if (m_Objects.empty()) m_Objects.resize(m_Matches->Count());
  Ref<RegExpMatch>& object = m_Objects[place];
  if (!object) object = MakeRef<RegExpMatch>(m_Matches, place);
  return object;
}

std::unique_ptr<Enumerator> RegExpMatches::Enumerate() {
  return std::make_unique<ItemEnumerator<RegExpMatches>>(*this);
}

const MemberTable& RegExpMatches::Members() const {
  static constexpr Member kMembers[] = {
      Property<&RegExpMatches::Item>(u"Item"),
      Property<&RegExpMatches::Count>(u"Count"),
  };
  static const MemberTable table(kMembers, u"Item");
  return table;
}

}  // namespace cardwright::scripting
