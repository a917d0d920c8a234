// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "cardwright/automation/MemberTable.h"
#include "cardwright/automation/MemoryShare.h"

namespace cardwright::scripting {

/// The positions of the matches of one search. Numbers only: match objects are made when a script asks for
/// them.
class RegExpSpans final : public RefCounted {
 public:
  RegExpSpans(Text text, std::size_t groups) : m_Text(std::move(text)), m_Groups(groups) {}

  /// Adds a match by its spans, as RegExpProgram::Search returns them. Error 7 where there are too many.
  void Add(std::span<const std::size_t> spans);

  std::size_t Count() const noexcept { return m_Spans.size() / Width(); }
  std::size_t Groups() const noexcept { return m_Groups; }
  std::size_t Start(std::size_t match) const noexcept { return m_Spans[match * Width()]; }
  std::size_t Length(std::size_t match) const noexcept { return m_Spans[match * Width() + 1] - Start(match); }
  /// Text of a group, 0 being the whole match; Empty where the group took no part in it.
  Variant Value(std::size_t match, std::size_t group) const;

 private:
  std::size_t Width() const noexcept { return (m_Groups + 1) * 2; }

  const Text m_Text;
  const std::size_t m_Groups;
  std::vector<std::uint32_t> m_Spans;
  MemoryShare m_Memory;
};

/// The texts of a match's groups, counted from 0.
class RegExpSubMatches final : public TableObject {
 public:
  RegExpSubMatches(Ref<const RegExpSpans> matches, std::size_t match)
      : m_Matches(std::move(matches)), m_Match(match) {}

  Text TypeName() const override { return u"ISubMatches"; }
  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(m_Matches->Groups()); }
  /// Error 5 outside.
  Variant Item(std::int32_t index) const;
  std::unique_ptr<Enumerator> Enumerate() override;

 protected:
  const MemberTable& Members() const override;

 private:
  const Ref<const RegExpSpans> m_Matches;
  const std::size_t m_Match;
};

/// One match.
class RegExpMatch final : public TableObject {
 public:
  RegExpMatch(Ref<const RegExpSpans> matches, std::size_t match)
      : m_Matches(std::move(matches)), m_Match(match) {}

  Text TypeName() const override { return u"IMatch2"; }
  /// Position of its first unit, from 0.
  std::int32_t FirstIndex() const noexcept { return static_cast<std::int32_t>(m_Matches->Start(m_Match)); }
  std::int32_t Length() const noexcept { return static_cast<std::int32_t>(m_Matches->Length(m_Match)); }
  Variant Value() const { return m_Matches->Value(m_Match, 0); }
  Ref<RegExpSubMatches> SubMatches();

 protected:
  const MemberTable& Members() const override;

 private:
  const Ref<const RegExpSpans> m_Matches;
  const std::size_t m_Match;
};

/// The matches of one search in the order of the text, from 0.
class RegExpMatches final : public TableObject {
 public:
  explicit RegExpMatches(Ref<const RegExpSpans> matches) : m_Matches(std::move(matches)) {}

  Text TypeName() const override { return u"IMatchCollection2"; }
  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(m_Matches->Count()); }
  /// The same object each time. Error 5 outside.
  Ref<RegExpMatch> Item(std::int32_t index);
  std::unique_ptr<Enumerator> Enumerate() override;

 protected:
  const MemberTable& Members() const override;

 private:
  const Ref<const RegExpSpans> m_Matches;
  std::vector<Ref<RegExpMatch>> m_Objects;  // those made so far, by index
};

}  // namespace cardwright::scripting
