// SPDX-License-Identifier: MIT
#include "cardwright/jscript/syntax/ConditionalExpression.h"

#include <cmath>
#include <cstdint>

#include "cardwright/automation/Conversions.h"
#include "cardwright/jscript/errors/ErrorNumbers.h"
#include "cardwright/jscript/syntax/CharacterClasses.h"
#include "cardwright/jscript/syntax/SourceError.h"

namespace cardwright::jscript {
namespace {

constexpr int kDeepest = 200;

bool IsTrue(double value) noexcept { return value != 0 && !std::isnan(value); }

std::int32_t Bits(double value) noexcept {
  if (!std::isfinite(value)) return 0;
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(std::fmod(std::trunc(value), 4294967296.0) +
                                                              (value < 0 ? 4294967296.0 : 0)));
}

struct Operator {
  std::u16string_view sign;
  int level;  // operators of a higher level bind tighter
  double (*apply)(double, double);
};

std::int32_t Shifted(double a, double b, bool left) noexcept {
  const auto count = static_cast<std::uint32_t>(Bits(b)) & 31u;
  const std::int32_t bits = Bits(a);
  return left ? static_cast<std::int32_t>(static_cast<std::uint32_t>(bits) << count) : bits >> count;
}

// Of signs with the same first characters the longer comes first.
constexpr Operator kOperators[] = {
    {u"||", 1, [](double a, double b) { return IsTrue(a) ? a : b; }},
    {u"&&", 2, [](double a, double b) { return IsTrue(a) ? b : a; }},
    {u"===", 6, [](double a, double b) -> double { return a == b; }},
    {u"!==", 6, [](double a, double b) -> double { return a != b; }},
    {u"==", 6, [](double a, double b) -> double { return a == b; }},
    {u"!=", 6, [](double a, double b) -> double { return a != b; }},
    {u"<<", 8, [](double a, double b) -> double { return Shifted(a, b, true); }},
    {u">>", 8, [](double a, double b) -> double { return Shifted(a, b, false); }},
    {u"<=", 7, [](double a, double b) -> double { return a <= b; }},
    {u">=", 7, [](double a, double b) -> double { return a >= b; }},
    {u"<", 7, [](double a, double b) -> double { return a < b; }},
    {u">", 7, [](double a, double b) -> double { return a > b; }},
    {u"|", 3, [](double a, double b) -> double { return Bits(a) | Bits(b); }},
    {u"^", 4, [](double a, double b) -> double { return Bits(a) ^ Bits(b); }},
    {u"&", 5, [](double a, double b) -> double { return Bits(a) & Bits(b); }},
    {u"+", 9, [](double a, double b) { return a + b; }},
    {u"-", 9, [](double a, double b) { return a - b; }},
    {u"*", 10, [](double a, double b) { return a * b; }},
    {u"/", 10, [](double a, double b) { return b == 0 ? std::nan("") : a / b; }},
    {u"%", 10, [](double a, double b) { return b == 0 ? std::nan("") : std::fmod(a, b); }},
};

}  // namespace

ConditionalVariables PredefinedVariables() {
  // Scripts test for the language and its version. The platform is the one that they were written for.
  return {
      {u"_win32", 1}, {u"_x86", 1}, {u"_jscript", 1}, {u"_jscript_version", 5.8}, {u"_jscript_build", 16384}};
}

void ConditionalExpression::SkipBlanks() noexcept {
  while (m_At < m_Source.size() && IsBlank(m_Source[m_At]) && !IsLineEnd(m_Source[m_At])) ++m_At;
}

double ConditionalExpression::Condition() {
  SkipBlanks();
  return m_At < m_Source.size() && m_Source[m_At] == u'(' ? Primary() : Binary(0);
}

double ConditionalExpression::Binary(int lowest) {
  double left = Unary();
  for (;;) {
    SkipBlanks();
    const std::u16string_view rest = m_Source.substr(m_At);
    const Operator* found = nullptr;
    for (const Operator& one : kOperators)
      if (!found && rest.starts_with(one.sign)) found = &one;
    // `*/` ends a comment; it is no product.
    if (!found || found->level <= lowest || rest.starts_with(u"*/") || rest.starts_with(u"//") ||
        rest.starts_with(u"/*"))
      return left;
    m_At += found->sign.size();
    left = found->apply(left, Binary(found->level));
  }
}

double ConditionalExpression::Unary() {
  if (++m_Depth > kDeepest) throw SourceError{kSyntaxError, m_At};
  SkipBlanks();
  const char16_t c = m_At < m_Source.size() ? m_Source[m_At] : u'\0';
  double value = 0;
  if (c == u'!' || c == u'-' || c == u'+' || c == u'~') {
    ++m_At;
    const double operand = Unary();
    value = c == u'!' ? !IsTrue(operand) : c == u'-' ? -operand : c == u'+' ? operand : ~Bits(operand);
  } else {
    value = Primary();
  }
  --m_Depth;
  return value;
}

double ConditionalExpression::Primary() {
  if (m_At >= m_Source.size()) throw SourceError{kExpectedConstant, m_At};
  const char16_t c = m_Source[m_At];
  if (c == u'(') {
    ++m_At;
    const double value = Binary(0);
    SkipBlanks();
    if (m_At >= m_Source.size() || m_Source[m_At] != u')') throw SourceError{kExpectedCloseParenthesis, m_At};
    ++m_At;
    return value;
  }
  if (IsDigit(c) || c == u'.') return Number();
  return Word();
}

double ConditionalExpression::Number() {
  const std::size_t start = m_At;
  while (m_At < m_Source.size() && (IsDigit(m_Source[m_At]) || m_Source[m_At] == u'.')) ++m_At;
  return Val(m_Source.substr(start, m_At - start));
}

double ConditionalExpression::Word() {
  const std::size_t start = m_At;
  const bool isVariable = m_Source[m_At] == u'@';
  if (isVariable) ++m_At;
  const std::size_t name = m_At;
  while (m_At < m_Source.size() && ContinuesName(m_Source[m_At])) ++m_At;
  const std::u16string_view word = m_Source.substr(name, m_At - name);
  if (word.empty() || (!isVariable && word != u"true" && word != u"false"))
    throw SourceError{kExpectedConstant, start};
  if (!isVariable) return word == u"true";
  const auto known = m_Variables.find(word);
  return known == m_Variables.end() ? std::nan("") : known->second;
}

}  // namespace cardwright::jscript
