#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "cardwright/automation/MemberTable.h"
#include "cardwright/automation/MemoryShare.h"

namespace cardwright::scripting {

/// Where the matches of one search lie: numbers only, out of which the objects are made when a script asks
/// for them.
class RegExpFindings final : public RefCounted {
 public:
  RegExpFindings(Text text, std::size_t groups) : m_Text(std::move(text)), m_Groups(groups) {}

  /// Adds a match by its spans, as RegExpProgram::Search gives them. Error 7 where there are too many.
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
  RegExpSubMatches(Ref<const RegExpFindings> findings, std::size_t match)
      : m_Findings(std::move(findings)), m_Match(match) {}

  Text TypeName() const override { return u"ISubMatches"; }
  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(m_Findings->Groups()); }
  /// Error 5 outside.
  Variant Item(std::int32_t index) const;
  std::unique_ptr<Enumerator> Enumerate() override;

 protected:
  const MemberTable& Members() const override;

 private:
  const Ref<const RegExpFindings> m_Findings;
  const std::size_t m_Match;
};

/// One match.
class RegExpMatch final : public TableObject {
 public:
  RegExpMatch(Ref<const RegExpFindings> findings, std::size_t match)
      : m_Findings(std::move(findings)), m_Match(match) {}

  Text TypeName() const override { return u"IMatch2"; }
  /// Place of its first unit in the text, counted from 0.
  std::int32_t FirstIndex() const noexcept { return static_cast<std::int32_t>(m_Findings->Start(m_Match)); }
  std::int32_t Length() const noexcept { return static_cast<std::int32_t>(m_Findings->Length(m_Match)); }
  Variant Value() const { return m_Findings->Value(m_Match, 0); }
  Ref<RegExpSubMatches> SubMatches();

 protected:
  const MemberTable& Members() const override;

 private:
  const Ref<const RegExpFindings> m_Findings;
  const std::size_t m_Match;
};

/// The matches of one search in the order of the text, counted from 0.
class RegExpMatches final : public TableObject {
 public:
  explicit RegExpMatches(Ref<const RegExpFindings> findings) : m_Findings(std::move(findings)) {}

  Text TypeName() const override { return u"IMatchCollection2"; }
  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(m_Findings->Count()); }
  /// The same object each time. Error 5 outside.
  Ref<RegExpMatch> Item(std::int32_t index);
  std::unique_ptr<Enumerator> Enumerate() override;

 protected:
  const MemberTable& Members() const override;

 private:
  const Ref<const RegExpFindings> m_Findings;
  std::vector<Ref<RegExpMatch>> m_Objects;  // those made so far, by their place
};

}  // namespace cardwright::scripting
