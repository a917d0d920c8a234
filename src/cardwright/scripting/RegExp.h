#pragma once

#include <cstddef>
#include <memory>

#include "cardwright/automation/MemberTable.h"

namespace cardwright::scripting {

class RegExpMatches;
class RegExpProgram;

/// The language's regular expressions, `VBScript.RegExp`. A pattern is read when it is first used, not when
/// it is set; its mistakes are errors 5017 (syntax), 5018 (quantifier), 5019 (no closing bracket), 5020 (no
/// closing parenthesis) and 5021 (range) of that use. A search that takes more than about a second or too
/// much memory is given up with error 17; a pattern that is too large is error 7.
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
  /// Whether Execute and Replace go through all of the text; else they end with the first match.
  bool IsGlobal() const noexcept { return m_IsGlobal; }
  void SetGlobal(bool global) noexcept { m_IsGlobal = global; }
  bool IgnoresCase() const noexcept { return m_IgnoresCase; }
  void SetIgnoreCase(bool ignoreCase);
  /// Whether ^ and $ match at each line of the text.
  bool IsMultiLine() const noexcept { return m_IsMultiLine; }
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
  bool m_IsGlobal = false;
  bool m_IgnoresCase = false;
  bool m_IsMultiLine = false;
  std::unique_ptr<RegExpProgram> m_Program;  // none until the pattern is used as it stands
};

}  // namespace cardwright::scripting
