// SPDX-License-Identifier: MIT
#include <algorithm>

#include "cardwright/vbscript/syntax/ExpressionParser.h"

namespace cardwright::vbscript {

Expr* ExpressionParser::ParseChain(ChainContext place) { return ParsePostfix(ParseChainStart(), place); }

Expr* ExpressionParser::ParseChainStart() {
  m_Height = 0;
  if (At(TokenKind::Dot)) return ParseMember(nullptr);
  if (At(TokenKind::Me)) return Make<Expr>(ExprKind::Me, Take().position);
  if (!IsName(Current().kind)) FailNoOperand();
  const Token name = Take();
  return Make<NameExpr>(Expr{ExprKind::Name, name.position}, name.text);
}

/// The links are parsed in a loop, but in the tree each is the parent of the one before: the height is
/// limited.
Expr* ExpressionParser::ParsePostfix(Expr* base, ChainContext place) {
  for (;;) {
    // In a statement of a With block, `show .Name` passes a member of the block's object.
    const bool isMember =
        At(TokenKind::Dot) && !(place == ChainContext::Statement && m_WithDepth > 0 && Current().afterBlank);
    if (!isMember && !At(TokenKind::LeftParen)) return base;
    if (m_Height >= kMaxNesting) Fail(SyntaxErrorNumber::OutOfMemory);
    base = isMember ? ParseMember(base) : ParseCall(base);
    ++m_Height;
  }
}

Expr* ExpressionParser::ParseMember(Expr* object) {
  const Position dot = Take().position;
  if (!IsName(Current().kind) && !IsKeyword(Current().kind)) Fail(SyntaxErrorNumber::ExpectedIdentifier);
  const Token name = Take();
  const Position start = object != nullptr ? object->position : dot;
  return Make<MemberExpr>(Expr{ExprKind::Member, start}, object, name.text, name.position);
}

Expr* ExpressionParser::ParseCall(Expr* callee) {
  const Nesting nesting(*this);
  const Position start = Take().position;
  int height = m_Height;
  List<Expr*> arguments(*this);
  if (!At(TokenKind::RightParen)) {
    do {
      ParseArgument(arguments);
      height = std::max(height, m_Height);
    } while (Accept(TokenKind::Comma));
  }
  m_Height = height;
  if (!At(TokenKind::RightParen)) Fail(SyntaxErrorNumber::ExpectedRightParen);
  m_LastParenStart = start;
  m_LastParenEnd = {Where().line, Where().column + 1};
  Advance();
  return Make<CallExpr>(Expr{ExprKind::Call, callee->position}, callee, arguments.Keep());
}

void ExpressionParser::ParseArgument(List<Expr*>& list) {
  list.Add(At(TokenKind::Comma) ? Make<Expr>(ExprKind::Missing, Where()) : ParseExpression());
}

}  // namespace cardwright::vbscript
