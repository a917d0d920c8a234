// SPDX-License-Identifier: MIT
#include <limits>
#include <optional>

#include "cardwright/vbscript/syntax/StatementParser.h"

namespace cardwright::vbscript {

Stmt* StatementParser::ParsePublicOrPrivate() {
  if (IsInProcedure()) Fail(SyntaxErrorNumber::SyntaxError);
  const Token word = Take();
  const Visibility visibility = word.kind == TokenKind::Public ? Visibility::Public : Visibility::Private;
  if (Accept(TokenKind::Const)) return ParseConst(visibility, word.position);
  return ParseDim(visibility, word.position);
}

DimStmt* StatementParser::ParseDim(Visibility visibility, Position start) {
  List<VariableDecl> variables(*this);
  do {
    variables.Add(ParseVariable());
  } while (Accept(TokenKind::Comma));
  return Make<DimStmt>(Stmt{StmtKind::Dim, start}, visibility, variables.Keep());
}

VariableDecl StatementParser::ParseVariable() {
  const Token name = TakeName();
  Declare(name);
  VariableDecl variable{name.text, name.position, At(TokenKind::LeftParen), {}};
  if (variable.isArray) variable.bounds = ParseFixedBounds();
  return variable;
}

/// The bounds of Dim are numbers; only ReDim takes expressions.
std::span<const std::int32_t> StatementParser::ParseFixedBounds() {
  Advance();
  List<std::int32_t> bounds(*this);
  if (Accept(TokenKind::RightParen)) return {};
  do {
    const Position where = Where();
    if (!At(TokenKind::Number)) Fail(SyntaxErrorNumber::ExpectedIntegerConstant);
    const Variant& value = *static_cast<LiteralExpr*>(ParseLiteral())->value;
    const std::int32_t bound = value.Type() == VarType::Integer ? value.Integer()
                               : value.Type() == VarType::Long  ? value.Long()
                                                                : -1;
    if (bound < 0) Fail(SyntaxErrorNumber::ExpectedIntegerConstant, where);
    bounds.Add(bound);
  } while (Accept(TokenKind::Comma));
  Expect(TokenKind::RightParen, SyntaxErrorNumber::ExpectedRightParen);
  return bounds.Keep();
}

Stmt* StatementParser::ParseConst(Visibility visibility, Position start) {
  List<ConstDecl> constants(*this);
  do {
    constants.Add(ParseConstant());
  } while (Accept(TokenKind::Comma));
  return Make<ConstStmt>(Stmt{StmtKind::Const, start}, visibility, constants.Keep());
}

ConstDecl StatementParser::ParseConstant() {
  const Token name = TakeName();
  Declare(name);
  Expect(TokenKind::Equal, SyntaxErrorNumber::ExpectedEquals);
  Expr* expression = ParseConstantExpression();
  // An expression that continues after the literal gets an error of its own: a constant must be a literal.
  if (AtBinaryOperator() || At(TokenKind::LeftParen) || At(TokenKind::Dot))
    Fail(SyntaxErrorNumber::ExpectedLiteral);
  return {name.text, name.position, ConstantValue(*expression), expression};
}

/// A literal in any parentheses; a number may have signs.
Expr* StatementParser::ParseConstantExpression() {
  const Nesting nesting(*this);
  const Position start = Where();
  switch (Current().kind) {
    case TokenKind::LeftParen: {
      Advance();
      Expr* inner = ParseConstantExpression();
      if (AtBinaryOperator()) Fail(SyntaxErrorNumber::ExpectedLiteral);
      Expect(TokenKind::RightParen, SyntaxErrorNumber::ExpectedRightParen);
      return Make<ParenExpr>(Expr{ExprKind::Paren, start}, inner);
    }
    case TokenKind::Minus:
    case TokenKind::Plus: {
      const UnaryOperator op = At(TokenKind::Minus) ? UnaryOperator::Negate : UnaryOperator::Plus;
      Advance();
      return Make<UnaryExpr>(Expr{ExprKind::Unary, start}, op, ParseConstantExpression());
    }
    case TokenKind::Number:
    case TokenKind::String:
    case TokenKind::Date:
    case TokenKind::True:
    case TokenKind::False:
    case TokenKind::Empty:
    case TokenKind::Null:
    case TokenKind::Nothing: return ParseLiteral();
    default: Fail(SyntaxErrorNumber::ExpectedLiteral);
  }
}

namespace {

/// A number with its sign inverted, in a type that can hold it; none for anything but numbers.
std::optional<Variant> NegatedConstant(const Variant& value) {
  switch (value.Type()) {
    case VarType::Integer:
      if (value.Integer() != std::numeric_limits<std::int16_t>::min()) {
        return static_cast<std::int16_t>(-value.Integer());
      }
      return -std::int32_t{value.Integer()};
    case VarType::Long:
      if (value.Long() != std::numeric_limits<std::int32_t>::min()) return -value.Long();
      return -static_cast<double>(value.Long());
    case VarType::Double: return -value.Double();
    default: return std::nullopt;
  }
}

}  // namespace

const Variant* StatementParser::ConstantValue(const Expr& expression) {
  if (expression.kind == ExprKind::Literal) return static_cast<const LiteralExpr&>(expression).value;
  if (expression.kind == ExprKind::Paren)
    return ConstantValue(*static_cast<const ParenExpr&>(expression).inner);
  const auto& sign = static_cast<const UnaryExpr&>(expression);
  const Variant* value = ConstantValue(*sign.operand);
  const std::optional<Variant> negated = NegatedConstant(*value);
  if (!negated) Fail(SyntaxErrorNumber::ExpectedLiteral, sign.operand->position);
  return sign.op == UnaryOperator::Negate ? Tree().Keep(*negated) : value;
}

Stmt* StatementParser::ParseReDim() {
  const Position start = Take().position;
  const bool preserve = Accept(TokenKind::Preserve);
  List<ReDimTarget> targets(*this);
  do {
    targets.Add(ParseReDimTarget());
  } while (Accept(TokenKind::Comma));
  return Make<ReDimStmt>(Stmt{StmtKind::ReDim, start}, preserve, targets.Keep());
}

ReDimTarget StatementParser::ParseReDimTarget() {
  const Position start = Where();
  if (!IsName(Current().kind) && !At(TokenKind::Dot) && !At(TokenKind::Me)) {
    Fail(SyntaxErrorNumber::ExpectedIdentifier);
  }
  Expr* chain = ParseChain(ChainContext::Expression);
  if (chain->kind != ExprKind::Call) Fail(SyntaxErrorNumber::ExpectedLeftParen);
  const auto& call = *static_cast<CallExpr*>(chain);
  const bool isPlain = call.callee->kind == ExprKind::Name || call.callee->kind == ExprKind::Member;
  if (!isPlain || call.arguments.empty()) Fail(SyntaxErrorNumber::SyntaxError, start);
  for (const Expr* bound : call.arguments) {
    if (bound->kind == ExprKind::Missing) Fail(SyntaxErrorNumber::SyntaxError, bound->position);
  }
  return {call.callee, start, call.arguments};
}

/// `Erase` may be a name too: the next token decides.
Stmt* StatementParser::ParseErase() {
  const Token next = PeekNext();
  const bool isStatement = IsName(next.kind) || next.kind == TokenKind::Me ||
                           (next.kind == TokenKind::Dot && next.afterBlank && m_WithDepth > 0);
  if (!isStatement) return ParseCallOrAssignment();
  const Position start = Take().position;
  List<Expr*> arrays(*this);
  do {
    if (!IsName(Current().kind) && !At(TokenKind::Dot) && !At(TokenKind::Me)) {
      Fail(SyntaxErrorNumber::ExpectedIdentifier);
    }
    arrays.Add(ParseChain(ChainContext::Expression));
  } while (Accept(TokenKind::Comma));
  return Make<EraseStmt>(Stmt{StmtKind::Erase, start}, arrays.Keep());
}

}  // namespace cardwright::vbscript
