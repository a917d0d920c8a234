// SPDX-License-Identifier: MIT
#include "cardwright/scripting/RegExp.h"

#include "cardwright/scripting/RegExpMatches.h"
#include "cardwright/scripting/RegExpProgram.h"
#include "cardwright/scripting/RegExpReplacement.h"

namespace cardwright::scripting {

RegExp::RegExp(std::size_t maxTextUnits) : m_MaxTextUnits(maxTextUnits) {}
RegExp::~RegExp() = default;

// Scripts often set what is already set: the program is dropped only where it changes.
void RegExp::SetPattern(Text pattern) {
  if (m_Pattern == pattern) return;
  m_Pattern = std::move(pattern);
  m_Program.reset();
}

void RegExp::SetIgnoreCase(bool ignoreCase) {
  if (std::exchange(m_IgnoreCase, ignoreCase) != ignoreCase) m_Program.reset();
}

void RegExp::SetMultiLine(bool multiLine) {
  if (std::exchange(m_MultiLine, multiLine) != multiLine) m_Program.reset();
}

RegExpProgram& RegExp::Program() {
  if (!m_Program) {
    const RegExpFlags flags{.ignoreCase = m_IgnoreCase, .multiLine = m_MultiLine};
    m_Program = std::make_unique<RegExpProgram>(m_Pattern, flags);
  }
  return *m_Program;
}

// Each search starts where the last match ended, one unit later after an empty match.
template <class Visit>
void RegExp::ForEachMatch(const Text& text, Visit visit) {
  RegExpProgram& program = Program();
  SearchBudget budget(text.Size());
  std::size_t from = 0;
  do {
    const std::span<const std::size_t> spans = program.Search(text, from, budget);
    if (spans.empty()) return;
    visit(spans);
    from = spans[1] > spans[0] ? spans[1] : spans[1] + 1;
  } while (m_Global && from <= text.Size());
}

bool RegExp::Test(const Text& text) {
  SearchBudget budget(text.Size());
  return !Program().Search(text, 0, budget).empty();
}

Ref<RegExpMatches> RegExp::Execute(const Text& text) {
  const auto matches = MakeRef<RegExpSpans>(text, Program().Groups());
  ForEachMatch(text, [&](std::span<const std::size_t> spans) { matches->Add(spans); });
  return MakeRef<RegExpMatches>(matches);
}

Text RegExp::Replace(const Text& text, const Text& replacement) {
  const RegExpReplacement pieces(replacement, Program().Groups());
  const std::u16string_view all = text;
  Text result;
  std::size_t done = 0;
  bool isFound = false;
  ForEachMatch(text, [&](std::span<const std::size_t> spans) {
    AppendChecked(result, all.substr(done, spans[0] - done), m_MaxTextUnits);
    pieces.AppendTo(result, all, spans, m_MaxTextUnits);
    done = spans[1];
    isFound = true;
  });
  if (!isFound) return text;
  AppendChecked(result, all.substr(done), m_MaxTextUnits);
  return result;
}

const MemberTable& RegExp::Members() const {
  static constexpr Member kMembers[] = {
      Property<&RegExp::Pattern, &RegExp::SetPattern>(u"Pattern"),
      Property<&RegExp::IgnoreCase, &RegExp::SetIgnoreCase>(u"IgnoreCase"),
      Property<&RegExp::Global, &RegExp::SetGlobal>(u"Global"),
      Property<&RegExp::MultiLine, &RegExp::SetMultiLine>(u"MultiLine"),
      Method<&RegExp::Execute>(u"Execute"),
      Method<&RegExp::Test>(u"Test"),
      Method<&RegExp::Replace>(u"Replace"),
  };
  static const MemberTable table(kMembers);
  return table;
}

}  // namespace cardwright::scripting
