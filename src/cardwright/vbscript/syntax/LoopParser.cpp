// SPDX-License-Identifier: MIT
#include <algorithm>

#include "cardwright/vbscript/syntax/StatementParser.h"

namespace cardwright::vbscript {

Stmt* StatementParser::ParseFor() {
  const Position start = Take().position;
  if (Accept(TokenKind::Each)) return ParseForEach(start);
  Expr* variable = ParseForVariable();
  Expect(TokenKind::Equal, SyntaxErrorNumber::ExpectedEquals);
  Expr* from = ParseExpression();
  Expect(TokenKind::To, SyntaxErrorNumber::ExpectedTo);
  Expr* to = ParseExpression();
  Expr* step = Accept(TokenKind::Step) ? ParseExpression() : nullptr;
  ExpectEndOfStatement();
  const Block body = ParseForBody(*variable);
  const Position next = Take().position;
  return Make<ForStmt>(Stmt{StmtKind::For, start}, variable, from, to, step, body, next);
}

Stmt* StatementParser::ParseForEach(Position start) {
  Expr* variable = ParseForVariable();
  Expect(TokenKind::In, SyntaxErrorNumber::ExpectedIn);
  Expr* collection = ParseExpression();
  ExpectEndOfStatement();
  const Block body = ParseForBody(*variable);
  const Position next = Take().position;
  return Make<ForEachStmt>(Stmt{StmtKind::ForEach, start}, variable, collection, body, next);
}

/// A plain variable that is not the variable of an enclosing loop.
Expr* StatementParser::ParseForVariable() {
  if (At(TokenKind::Dot) || At(TokenKind::Me)) Fail(SyntaxErrorNumber::InvalidForVariable);
  const Token name = TakeName();
  const bool isPlain = !At(TokenKind::Dot) && !At(TokenKind::LeftParen);
  const bool isTaken = std::ranges::any_of(
      m_Enclosing.forVariables, [&](std::u16string_view outer) { return EqualsNoCase(outer, name.text); });
  if (!isPlain || isTaken) Fail(SyntaxErrorNumber::InvalidForVariable, name.position);
  return Make<NameExpr>(Expr{ExprKind::Name, name.position}, name.text);
}

/// Statements up to Next, which is the current token afterwards.
Block StatementParser::ParseForBody(const Expr& variable) {
  m_Enclosing.forVariables.push_back(static_cast<const NameExpr&>(variable).name);
  const Block body = ParseBlock(TokenKind::EndOfSource);
  m_Enclosing.forVariables.pop_back();
  if (!At(TokenKind::Next)) FailUnclosed(SyntaxErrorNumber::ExpectedNext);
  return body;
}

Stmt* StatementParser::ParseDo() {
  const Position start = Take().position;
  LoopKind loop = LoopKind::Endless;
  Expr* condition = ParseDoCondition(loop, LoopKind::DoWhile, LoopKind::DoUntil);
  ++m_Enclosing.doLoops;
  const Block body = ParseBlock(TokenKind::EndOfSource);
  --m_Enclosing.doLoops;
  if (!At(TokenKind::Loop)) FailUnclosed(SyntaxErrorNumber::ExpectedLoop);
  const Position end = Take().position;
  if (condition == nullptr) condition = ParseDoCondition(loop, LoopKind::LoopWhile, LoopKind::LoopUntil);
  return Make<LoopStmt>(Stmt{StmtKind::Loop, start}, loop, condition, body, end);
}

/// The condition after Do or Loop; null where there is none.
Expr* StatementParser::ParseDoCondition(LoopKind& loop, LoopKind whileKind, LoopKind untilKind) {
  if (AtEndOfStatement()) return nullptr;
  if (!At(TokenKind::While) && !At(TokenKind::Until)) Fail(SyntaxErrorNumber::ExpectedWhileUntilOrEnd);
  loop = At(TokenKind::While) ? whileKind : untilKind;
  Advance();
  Expr* condition = ParseExpression();
  ExpectEndOfStatement();
  return condition;
}

Stmt* StatementParser::ParseWhile() {
  const Position start = Take().position;
  Expr* condition = ParseExpression();
  ++m_Enclosing.whileLoops;
  const Block body = ParseBlockAfterHead(TokenKind::EndOfSource);
  --m_Enclosing.whileLoops;
  if (!At(TokenKind::Wend)) FailUnclosed(SyntaxErrorNumber::ExpectedWend);
  const Position end = Take().position;
  return Make<LoopStmt>(Stmt{StmtKind::Loop, start}, LoopKind::WhileWend, condition, body, end);
}

}  // namespace cardwright::vbscript
