#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace cardwright::jscript {

/// Variables of conditional compilation by their names without the `@`; truth is 1.
using ConditionalVariables = std::map<std::u16string, double, std::less<>>;
/// Those that every source finds.
ConditionalVariables PredefinedVariables();

/// The expression of an `@if` or `@set`: numbers, `true`, `false`, variables, and operators as in the
/// language.
class ConditionalExpression {
 public:
  ConditionalExpression(std::u16string_view source, std::size_t start, const ConditionalVariables& variables)
      : m_Source(source), m_At(start), m_Variables(variables) {}
  /// Throws a SyntaxFault.
  double Value() { return Binary(0); }
  /// A condition, of which nothing follows its bracket.
  double Condition();
  /// Where the expression ended.
  std::size_t End() const noexcept { return m_At; }

 private:
  double Binary(int lowest);
  double Unary();
  double Primary();
  double Number();
  double Word();
  void PassBlanks() noexcept;

  std::u16string_view m_Source;
  std::size_t m_At;
  const ConditionalVariables& m_Variables;
  int m_Depth = 0;
};

}  // namespace cardwright::jscript
