// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cardwright/vbscript/syntax/SyntaxTree.h"

namespace cardwright::vbscript {

/// An operator as it is written in programs.
std::u16string_view SpellingOf(BinaryOperator op);

/// Writes expressions as their author wrote them, except for blanks.
class ExpressionPrinter {
 public:
  explicit ExpressionPrinter(std::u16string_view source) : m_Source(source) {}

  ExpressionPrinter& operator<<(std::u16string_view text) {
    m_Text += text;
    return *this;
  }
  ExpressionPrinter& operator<<(const Expr& expression) {
    Write(expression);
    return *this;
  }

 protected:
  /// A name, in brackets where the source has them.
  void WriteName(std::u16string_view name);
  void WriteList(std::span<Expr* const> expressions);

  std::u16string m_Text;

 private:
  void Write(const Expr& expression);
  void WriteBinary(const BinaryExpr& binary);
  void WriteUnary(const UnaryExpr& unary);
  void WriteMember(const MemberExpr& member);

  std::u16string_view m_Source;
};

}  // namespace cardwright::vbscript
