// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/ExpressionParser.h"

#include <algorithm>
#include <array>

#include "cardwright/vbscript/syntax/Literals.h"

namespace cardwright::vbscript {

namespace {

struct BinaryRule {
  BinaryOperator op{};
  int precedence = 0;  ///< 0 where the token is no operator
};

constexpr int kLowest = 1;
constexpr int kComparison = 7;  ///< the lowest precedence within the operand of Not

// All of them group from the left, even the power. A sign binds tighter than any of them.
constexpr auto kRules = [] {
  using enum TokenKind;
  std::array<BinaryRule, kTokenKinds> rules{};
  const auto set = [&rules](TokenKind kind, BinaryOperator op, int precedence) {
    rules[static_cast<std::size_t>(kind)] = {op, precedence};
  };
  set(Imp, BinaryOperator::Imp, 1);
  set(Eqv, BinaryOperator::Eqv, 2);
  set(Xor, BinaryOperator::Xor, 3);
  set(Or, BinaryOperator::Or, 4);
  set(And, BinaryOperator::And, 5);
  set(Equal, BinaryOperator::Equal, kComparison);
  set(NotEqual, BinaryOperator::NotEqual, kComparison);
  set(Less, BinaryOperator::Less, kComparison);
  set(LessOrEqual, BinaryOperator::LessOrEqual, kComparison);
  set(Greater, BinaryOperator::Greater, kComparison);
  set(GreaterOrEqual, BinaryOperator::GreaterOrEqual, kComparison);
  set(Is, BinaryOperator::Is, kComparison);
  set(Ampersand, BinaryOperator::Concatenate, 8);
  set(Plus, BinaryOperator::Add, 9);
  set(Minus, BinaryOperator::Subtract, 9);
  set(Mod, BinaryOperator::Modulo, 10);
  set(Backslash, BinaryOperator::IntegerDivide, 11);
  set(Star, BinaryOperator::Multiply, 12);
  set(Slash, BinaryOperator::Divide, 12);
  set(Caret, BinaryOperator::Power, 13);
  return rules;
}();

constexpr const BinaryRule& RuleOf(TokenKind kind) { return kRules[static_cast<std::size_t>(kind)]; }

}  // namespace

Expr* ExpressionParser::ParseExpression() { return ParseBinary(kLowest); }

Expr* ExpressionParser::ContinueExpression(Expr* left) { return ContinueBinary(left, kLowest); }

bool ExpressionParser::AtBinaryOperator() {
  SplitAmpersand();
  return RuleOf(Current().kind).precedence != 0;
}

bool ExpressionParser::AtExpression() const {
  using enum TokenKind;
  switch (Current().kind) {
    case Number:
    case String:
    case Date:
    case Dot:
    case LeftParen:
    case Plus:
    case Minus:
    case Not:
    case New:
    case Me:
    case True:
    case False:
    case Empty:
    case Null:
    case Nothing: return true;
    default: return IsName(Current().kind);
  }
}

Expr* ExpressionParser::ParseBinary(int lowest) { return ContinueBinary(ParseOperand(), lowest); }

Expr* ExpressionParser::ContinueBinary(Expr* left, int lowest) {
  int height = m_Height;
  while (AtBinaryOperator()) {
    const BinaryRule& rule = RuleOf(Current().kind);
    if (rule.precedence < lowest) break;
    const Position position = Take().position;
    Expr* right = ParseBinary(rule.precedence + 1);
    left = Make<BinaryExpr>(Expr{ExprKind::Binary, position}, rule.op, left, right);
    height = std::max(height, m_Height + 1);
  }
  m_Height = height;
  return left;
}

Expr* ExpressionParser::ParseOperand() {
  using enum TokenKind;
  switch (Current().kind) {
    case Minus: return ParseUnary(UnaryOperator::Negate);
    case Plus: return ParseUnary(UnaryOperator::Plus);
    case Not: return ParseUnary(UnaryOperator::Not);
    case New: return ParseNew();
    case LeftParen: return ParsePostfix(ParseParen(), ChainContext::Expression);
    case Number:
    case String:
    case Date:
    case True:
    case False:
    case Empty:
    case Null:
    case Nothing: return ParseLiteral();
    default: return ParseChain(ChainContext::Expression);
  }
}

Expr* ExpressionParser::ParseUnary(UnaryOperator op) {
  const Nesting nesting(*this);
  const Position position = Take().position;
  Expr* operand = op == UnaryOperator::Not ? ParseBinary(kComparison) : ParseOperand();
  ++m_Height;
  return Make<UnaryExpr>(Expr{ExprKind::Unary, position}, op, operand);
}

Expr* ExpressionParser::ParseNew() {
  const Position position = Take().position;
  m_Height = 0;
  return Make<NewExpr>(Expr{ExprKind::New, position}, TakeName().text);
}

Expr* ExpressionParser::ParseParen() {
  const Nesting nesting(*this);
  const Position position = Take().position;
  Expr* inner = ParseExpression();
  ++m_Height;
  Expect(TokenKind::RightParen, SyntaxErrorNumber::ExpectedRightParen);
  return Make<ParenExpr>(Expr{ExprKind::Paren, position}, inner);
}

Expr* ExpressionParser::MakeLiteral(Variant value) {
  const Token token = Take();
  m_Height = 0;
  return Make<LiteralExpr>(Expr{ExprKind::Literal, token.position}, Tree().Keep(std::move(value)),
                           token.text);
}

Expr* ExpressionParser::ParseLiteral() {
  const std::u16string_view spelling = Current().text;
  switch (Current().kind) {
    case TokenKind::Number:
      if (auto value = NumberValue(spelling)) return MakeLiteral(*std::move(value));
      Fail(SyntaxErrorNumber::InvalidNumber);
    case TokenKind::Date:
      if (auto value = DateValueOf(spelling)) return MakeLiteral(*std::move(value));
      Fail(SyntaxErrorNumber::SyntaxError);
    case TokenKind::String: return MakeLiteral(StringValue(spelling));
    case TokenKind::True: return MakeLiteral(true);
    case TokenKind::False: return MakeLiteral(false);
    case TokenKind::Empty: return MakeLiteral({});
    case TokenKind::Null: return MakeLiteral(Variant::Null());
    case TokenKind::Nothing: return MakeLiteral(Variant::Nothing());
    default: FailNoOperand();
  }
}

/// Something like `&hXY`, which is no number, comes from the lexer as the operator `&`.
void ExpressionParser::FailNoOperand() const {
  if (At(TokenKind::Ampersand)) {
    const Token next = PeekNext();
    const char16_t base = next.text.empty() ? u'\0' : static_cast<char16_t>(next.text.front() | 0x20);
    if (!next.afterBlank && (base == u'h' || base == u'o')) Fail(SyntaxErrorNumber::InvalidNumber);
  }
  Fail(SyntaxErrorNumber::SyntaxError);
}

}  // namespace cardwright::vbscript
