// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/StatementParser.h"

namespace cardwright::vbscript {

Stmt* StatementParser::ParseSet() {
  const Position start = Take().position;
  if (At(TokenKind::Me)) {
    if (PeekNext().kind == TokenKind::Equal) Fail(SyntaxErrorNumber::InvalidMe);
  } else if (!IsName(Current().kind) && !At(TokenKind::Dot)) {
    Fail(SyntaxErrorNumber::ExpectedIdentifier);
  }
  Expr* target = ParseChain(ChainContext::Expression);
  if (!At(TokenKind::Equal)) Fail(SyntaxErrorNumber::ExpectedEquals);
  return ParseAssignment(start, true, target);
}

Stmt* StatementParser::ParseAssignment(Position start, bool isSet, Expr* target) {
  Advance();
  return Make<AssignStmt>(Stmt{StmtKind::Assign, start}, isSet, target, ParseExpression());
}

/// `Call f(a, b)`: the last parentheses contain the arguments.
Stmt* StatementParser::ParseCallKeyword() {
  const Position start = Take().position;
  if (!IsName(Current().kind) && !At(TokenKind::Dot) && !At(TokenKind::Me)) {
    Fail(SyntaxErrorNumber::ExpectedIdentifier);
  }
  Expr* callee = ParseChain(ChainContext::Expression);
  std::span<Expr* const> arguments;
  if (callee->kind == ExprKind::Call) {
    const auto& call = *static_cast<CallExpr*>(callee);
    arguments = call.arguments;
    callee = call.callee;
  }
  CheckCallee(*callee);
  return Make<CallStmt>(Stmt{StmtKind::Call, start}, true, callee, arguments);
}

Stmt* StatementParser::ParseCallOrAssignment() {
  const Position start = Where();
  Expr* chain = ParseChain(ChainContext::Statement);
  if (At(TokenKind::Equal) && chain->kind != ExprKind::Me) return ParseAssignment(start, false, chain);
  List<Expr*> arguments(*this);
  Expr* callee = chain->kind == ExprKind::Call
                     ? ParseParenthesisedFirst(*static_cast<CallExpr*>(chain), arguments)
                     : ParseBareArguments(chain, arguments);
  return Make<CallStmt>(Stmt{StmtKind::Call, start}, false, callee, arguments.Keep());
}

/// `Me` alone cannot be called.
void StatementParser::CheckCallee(const Expr& callee) {
  if (callee.kind == ExprKind::Me) Fail(SyntaxErrorNumber::InvalidMe, callee.position);
}

Expr* StatementParser::ParseBareArguments(Expr* chain, List<Expr*>& arguments) {
  CheckCallee(*chain);
  if (AtEndOfStatement()) return chain;
  if (!AtExpression() && !At(TokenKind::Comma)) Fail(SyntaxErrorNumber::ExpectedEndOfStatement);
  do {
    ParseArgument(arguments);
  } while (Accept(TokenKind::Comma));
  return chain;
}

/// `f (a)`, `f (a), b` and `f (a) + 1, b`: the parentheses belong to the first argument and enclose nothing
/// else.
Expr* StatementParser::ParseParenthesisedFirst(CallExpr& call, List<Expr*>& arguments) {
  const bool continues = AtBinaryOperator() || At(TokenKind::Comma);
  if (!continues && !AtEndOfStatement() && !At(TokenKind::End))
    Fail(SyntaxErrorNumber::ExpectedEndOfStatement);
  CheckCallee(*call.callee);
  if (call.arguments.empty() && !continues) return call.callee;
  if (call.arguments.size() != 1) Fail(SyntaxErrorNumber::CannotUseParentheses, LastParenEnd());
  Expr* first = Make<ParenExpr>(Expr{ExprKind::Paren, LastParenStart()}, call.arguments[0]);
  if (AtBinaryOperator()) first = ContinueExpression(first);
  arguments.Add(first);
  while (Accept(TokenKind::Comma)) ParseArgument(arguments);
  return call.callee;
}

}  // namespace cardwright::vbscript
