// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/vbscript/syntax/ParserCore.h"

namespace cardwright::vbscript {

/// Expressions, by precedence climbing: a chain of operators is parsed in a loop, however long it is.
class ExpressionParser : public ParserCore {
 public:
  using ParserCore::ParserCore;

  Expr* ParseExpression();

 protected:
  /// `left` and whatever operators follow it.
  Expr* ContinueExpression(Expr* left);
  /// Whether the current token is a binary operator.
  bool AtBinaryOperator();
  /// Whether the current token can begin an expression.
  bool AtExpression() const;

  /// The context of a chain of names, members and calls decides what a blank before a dot means.
  enum class ChainContext { Expression, Statement };
  /// `a`, `.b`, `a.b(c).d` and the like, as many links as there are.
  Expr* ParseChain(ChainContext place);
  /// Start and end of the parentheses of the last call in the chain parsed last.
  Position LastParenStart() const { return m_LastParenStart; }
  Position LastParenEnd() const { return m_LastParenEnd; }

  /// `expr {, expr}`. Arguments may be omitted, but not the last one.
  void ParseArgument(List<Expr*>& list);

  Expr* ParseLiteral();

  /// Enclosing With blocks within the procedure.
  int m_WithDepth = 0;

 private:
  Expr* ParseBinary(int lowest);
  Expr* ContinueBinary(Expr* left, int lowest);
  Expr* ParseOperand();
  Expr* ParseUnary(UnaryOperator op);
  Expr* ParseNew();
  Expr* ParseParen();
  Expr* ParseChainStart();
  Expr* ParsePostfix(Expr* base, ChainContext place);
  Expr* ParseMember(Expr* object);
  Expr* ParseCall(Expr* callee);
  Expr* MakeLiteral(Variant value);
  [[noreturn]] void FailNoOperand() const;

  Position m_LastParenStart;
  Position m_LastParenEnd;
  /// Height of the tree of the expression parsed last; a chain of operators counts as one level.
  int m_Height = 0;
};

}  // namespace cardwright::vbscript
