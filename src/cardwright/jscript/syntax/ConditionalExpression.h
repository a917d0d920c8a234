// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace cardwright::jscript {

/// Variables of conditional compilation by their names without the `@`; true is 1.
using ConditionalVariables = std::map<std::u16string, double, std::less<>>;
/// The variables that every source starts with.
ConditionalVariables PredefinedVariables();

/// Evaluates the expression of an `@if` or `@set`: numbers, `true`, `false`, variables and the operators of
/// the language.
class ConditionalExpression {
 public:
  ConditionalExpression(std::u16string_view source, std::size_t start, const ConditionalVariables& variables)
      : m_Source(source), m_At(start), m_Variables(variables) {}
  /// Throws a SourceError.
  double Value() { return Binary(0); }
  /// The value of a condition, which ends with its closing parenthesis if it begins with one.
  double Condition();
  /// Where the expression ended.
  std::size_t End() const noexcept { return m_At; }

 private:
  double Binary(int lowest);
  double Unary();
  double Primary();
  double Number();
  double Word();
  void SkipBlanks() noexcept;

  std::u16string_view m_Source;
  std::size_t m_At;
  const ConditionalVariables& m_Variables;
  int m_Depth = 0;
};

}  // namespace cardwright::jscript
