// SPDX-License-Identifier: MIT
#include "cardwright/jscript/syntax/ConditionalCode.h"

#include <algorithm>
#include <cmath>

#include "cardwright/automation/Conversions.h"
#include "cardwright/jscript/errors/ErrorNumbers.h"
#include "cardwright/jscript/syntax/CharacterClasses.h"
#include "cardwright/jscript/syntax/ConditionalExpression.h"
#include "cardwright/jscript/syntax/SourceError.h"

namespace cardwright::jscript {
namespace {

std::u16string Literal(double value) {
  if (std::isnan(value)) return u"NaN";
  const Text digits = FormatExact(value);
  return value < 0 ? u"(" + std::u16string(digits.View()) + u")" : std::u16string(digits.View());
}

/// Runs the statements in one pass and replaces what is not compiled by blanks.
class Preprocessor {
 public:
  explicit Preprocessor(std::u16string_view source) : m_Source(source) { m_Result.text = source; }

  ConditionalResult Run() {
    while (m_At < m_Source.size()) Step();
    if (!m_OpenIfs.empty()) throw SourceError{kExpectedConditionalEnd, m_Source.size()};
    return std::move(m_Result);
  }

 private:
  /// An open `@if`.
  struct If {
    bool isTaken = false;   // the current branch is compiled
    bool wasTaken = false;  // a branch was compiled, so later ones are not
    bool isInside = false;  // the code around the `@if` is compiled
  };

  bool IsKept() const noexcept { return m_OpenIfs.empty() || m_OpenIfs.back().isTaken; }
  bool Has(std::u16string_view words) const noexcept { return m_Source.substr(m_At).starts_with(words); }
  void Blank(std::size_t from, std::size_t to) {
    for (std::size_t k = from; k < to; ++k)
      if (!IsLineEnd(m_Result.text[k])) m_Result.text[k] = u' ';
  }
  /// Advances to a position and blanks what is not compiled.
  void Advance(std::size_t to) {
    to = std::min(to, m_Source.size());
    if (!IsKept()) Blank(m_At, to);
    m_At = to;
  }
  bool OpensConditionalComment() const noexcept;
  void Step();
  void SkipString(char16_t quote);
  void SkipComment();
  void SkipRegExp();
  bool MayBeRegExp() const noexcept;
  void RunStatement();
  void RunSet();
  void RunIf(std::size_t start);
  void PutVariable(std::size_t start, const std::u16string& name);

  double Calculate(double (ConditionalExpression::*kind)()) {
    ConditionalExpression expression(m_Source, m_At, m_Variables);
    const double value = (expression.*kind)();
    m_At = expression.End();
    return value;
  }
  std::u16string Name() {
    const std::size_t start = m_At;
    while (m_At < m_Source.size() && ContinuesName(m_Source[m_At])) ++m_At;
    return std::u16string(m_Source.substr(start, m_At - start));
  }

  std::u16string_view m_Source;
  std::size_t m_At = 0;
  bool m_IsOn = false;
  bool m_IsInLine = false;   // within a `//@` comment
  char16_t m_Before = u';';  // the latest character that is no blank
  std::vector<If> m_OpenIfs;
  ConditionalVariables m_Variables = PredefinedVariables();
  ConditionalResult m_Result;
};

bool Preprocessor::OpensConditionalComment() const noexcept {
  if (!Has(u"/*@") && !Has(u"//@")) return false;
  if (m_IsOn) return true;
  const std::u16string_view rest = m_Source.substr(m_At + 3);
  return rest.starts_with(u"cc_on") || rest.starts_with(u"if") || rest.starts_with(u"set");
}

void Preprocessor::Step() {
  const char16_t c = m_Source[m_At];
  if (OpensConditionalComment()) {
    m_IsInLine |= Has(u"//");
    Blank(m_At, m_At + 2);
    m_At += 2;
    m_IsOn = true;
    return;
  }
  if (Has(u"//") || Has(u"/*")) return SkipComment();
  if (c == u'"' || c == u'\'' || c == u'`') return SkipString(c);
  if (c == u'/' && MayBeRegExp()) return SkipRegExp();
  if (m_IsOn && Has(u"@*/")) {
    Blank(m_At, m_At + 3);
    m_At += 3;
    return;
  }
  if (c == u'@') return RunStatement();
  if (IsLineEnd(c)) m_IsInLine = false;
  if (!IsBlank(c)) m_Before = c;
  Advance(m_At + 1);
}

void Preprocessor::SkipString(char16_t quote) {
  std::size_t end = m_At + 1;
  while (end < m_Source.size() && m_Source[end] != quote && (quote == u'`' || !IsLineEnd(m_Source[end])))
    end += m_Source[end] == u'\\' ? 2 : 1;
  m_Before = quote;
  Advance(end + 1);
}

void Preprocessor::SkipComment() {
  if (Has(u"//")) {
    std::size_t end = m_At;
    while (end < m_Source.size() && !IsLineEnd(m_Source[end])) ++end;
    return Advance(end);
  }
  const std::size_t end = m_Source.find(u"*/", m_At + 2);
  Advance(end == std::u16string_view::npos ? m_Source.size() : end + 2);
}

bool Preprocessor::MayBeRegExp() const noexcept {
  return std::u16string_view(u"(,=:[!&|?{};+-*%<>~^").find(m_Before) != std::u16string_view::npos;
}

void Preprocessor::SkipRegExp() {
  bool isInClass = false;
  std::size_t end = m_At + 1;
  for (; end < m_Source.size() && !IsLineEnd(m_Source[end]); ++end) {
    const char16_t c = m_Source[end];
    if (c == u'\\') ++end;
    if (c == u'[') isInClass = true;
    if (c == u']') isInClass = false;
    if (c == u'/' && !isInClass) break;
  }
  m_Before = u'/';
  Advance(end + 1);
}

void Preprocessor::RunStatement() {
  const std::size_t start = m_At++;
  const std::u16string name = Name();
  if (name.empty()) {
    // The compiler reports a lone `@`.
    m_Before = u'@';
    return;
  }
  if (name == u"cc_on") {
    m_IsOn = true;
  } else if (name == u"set") {
    m_IsOn = true;
    RunSet();
  } else if (name == u"if" || name == u"elif" || name == u"else" || name == u"end") {
    m_IsOn = true;
    m_At = start;
    return RunIf(start);
  } else {
    return PutVariable(start, name);
  }
  Blank(start, m_At);
}

void Preprocessor::RunSet() {
  const auto skipBlanks = [&] {
    while (m_At < m_Source.size() && IsBlank(m_Source[m_At]) && !IsLineEnd(m_Source[m_At])) ++m_At;
  };
  skipBlanks();
  if (m_At >= m_Source.size() || m_Source[m_At] != u'@') throw SourceError{kExpectedAtSign, m_At};
  ++m_At;
  const std::u16string name = Name();
  skipBlanks();
  if (m_At >= m_Source.size() || m_Source[m_At] != u'=') throw SourceError{kExpectedEquals, m_At};
  ++m_At;
  const double value = Calculate(&ConditionalExpression::Value);
  if (IsKept()) m_Variables[name] = value;
}

void Preprocessor::RunIf(std::size_t start) {
  ++m_At;
  const std::u16string name = Name();
  const bool isFirst = name == u"if";
  if (!isFirst && m_OpenIfs.empty()) throw SourceError{kSyntaxError, start};
  const bool isKept = IsKept();
  if (isFirst) m_OpenIfs.push_back({.isInside = isKept});
  if (isFirst || name == u"elif") {
    const double value = Calculate(&ConditionalExpression::Condition);
    If& own = m_OpenIfs.back();
    own.isTaken = own.isInside && !own.wasTaken && value != 0 && !std::isnan(value);
    own.wasTaken |= own.isTaken;
  } else if (name == u"else") {
    If& own = m_OpenIfs.back();
    own.isTaken = own.isInside && !own.wasTaken;
    own.wasTaken = true;
  } else {
    m_OpenIfs.pop_back();
  }
  Blank(start, m_At);
}

void Preprocessor::PutVariable(std::size_t start, const std::u16string& name) {
  Blank(start, m_At);
  m_Before = u'0';
  if (!IsKept()) return;
  const auto known = m_Variables.find(name);
  m_Result.text[start] = u'0';
  m_Result.values.push_back({start, 1, Literal(known == m_Variables.end() ? std::nan("") : known->second)});
}

}  // namespace

ConditionalResult RunConditionalCode(std::u16string_view source) {
  // Few sources have any, and finding that out is cheap.
  if (source.find(u'@') == std::u16string_view::npos) return {std::u16string(source), {}};
  return Preprocessor(source).Run();
}

}  // namespace cardwright::jscript
