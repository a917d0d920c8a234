// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>

#include "cardwright/automation/MemberTable.h"

namespace cardwright::scripting {

class RegExpMatches;
class RegExpProgram;

/// `VBScript.RegExp`. A pattern is translated when it is first used, and that use raises its errors: 5017
/// (syntax), 5018 (quantifier), 5019 (no closing bracket), 5020 (no closing parenthesis), 5021 (range), 7
/// (too large). A search that takes more than about a second or too much memory ends with error 17.
class RegExp final : public TableObject {
 public:
  /// Longest result of a replacement without a limit of its own, in UTF-16 units.
  static constexpr std::size_t kMaxTextUnits = std::size_t{1} << 28;

  /// `maxTextUnits` is the longest result of a replacement; beyond it is error 14.
  explicit RegExp(std::size_t maxTextUnits = kMaxTextUnits);
  ~RegExp() override;

  Text TypeName() const override { return u"IRegExp2"; }

  Text Pattern() const { return m_Pattern; }
  void SetPattern(Text pattern);
  /// Whether Execute and Replace find all matches, or only the first.
  bool Global() const noexcept { return m_Global; }
  void SetGlobal(bool global) noexcept { m_Global = global; }
  bool IgnoreCase() const noexcept { return m_IgnoreCase; }
  void SetIgnoreCase(bool ignoreCase);
  /// Whether ^ and $ match at each line of the text.
  bool MultiLine() const noexcept { return m_MultiLine; }
  void SetMultiLine(bool multiLine);

  /// Whether the text has a match.
  bool Test(const Text& text);
  Ref<RegExpMatches> Execute(const Text& text);
  /// The text with its matches replaced; `replacement` as RegExpReplacement reads it.
  Text Replace(const Text& text, const Text& replacement);

 protected:
  const MemberTable& Members() const override;

 private:
  RegExpProgram& Program();
  template <class Visit>
  void ForEachMatch(const Text& text, Visit visit);

  const std::size_t m_MaxTextUnits;
  Text m_Pattern;
  bool m_Global = false;
  bool m_IgnoreCase = false;
  bool m_MultiLine = false;
  std::unique_ptr<RegExpProgram> m_Program;  // null until the pattern is used, and after each change
};

}  // namespace cardwright::scripting
