#pragma once

#include "cardwright/vbscript/syntax/ParserCore.h"

namespace cardwright::vbscript {

/// Expressions, by climbing precedences: a chain of operators of any length is a loop.
class ExpressionParser : public ParserCore {
 public:
  using ParserCore::ParserCore;

  Expr* ParseExpression();

 protected:
  /// `left` and whatever operators follow it.
  Expr* ContinueExpression(Expr* left);
  /// Whether an operator with two sides is at hand where one may stand.
  bool AtBinaryOperator();
  /// Whether the token at hand can begin an expression.
  bool AtExpression() const;

  /// Where a chain of names, members and calls stands decides what a blank before a dot means.
  enum class ChainPlace { Expression, Statement };
  /// `a`, `.b`, `a.b(c).d` and the like, as far as it goes.
  Expr* ParseChain(ChainPlace place);
  /// The parentheses of the last chain's last call: where they open, and behind where they close.
  Position LastParenStart() const { return m_LastParenStart; }
  Position LastParenEnd() const { return m_LastParenEnd; }

  /// `expr {, expr}` where arguments may be left out, but not the last one.
  void ParseArgument(List<Expr*>& list);

  Expr* ParseLiteral();

  /// How many With blocks the place is in, within its procedure.
  int m_WithDepth = 0;

 private:
  Expr* ParseBinary(int lowest);
  Expr* ContinueBinary(Expr* left, int lowest);
  Expr* ParseOperand();
  Expr* ParseUnary(UnaryOperator op);
  Expr* ParseNew();
  Expr* ParseParen();
  Expr* ParseChainStart();
  Expr* ParsePostfix(Expr* base, ChainPlace place);
  Expr* ParseMember(Expr* object);
  Expr* ParseCall(Expr* callee);
  Expr* MakeLiteral(Variant value);
  [[noreturn]] void FailNoOperand() const;

  Position m_LastParenStart;
  Position m_LastParenEnd;
  /// Of the expression parsed last: levels below it in the tree, a chain of operators counting as one.
  int m_Height = 0;
};

}  // namespace cardwright::vbscript
