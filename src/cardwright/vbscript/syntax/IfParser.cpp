// SPDX-License-Identifier: MIT
#include <utility>

#include "cardwright/vbscript/syntax/StatementParser.h"

namespace cardwright::vbscript {

/// A statement after Then in the same line makes it an If of one line; colons alone do not.
Stmt* StatementParser::ParseIf() {
  const Position start = Where();
  const IfBranch head = ParseIfHead();
  while (At(TokenKind::Colon)) Advance();
  const bool isBlock = At(TokenKind::EndOfLine) || At(TokenKind::EndOfSource);
  return isBlock ? ParseBlockIf(head, start) : ParseInlineIf(head, start);
}

IfBranch StatementParser::ParseIfHead() {
  const Position position = Take().position;
  Expr* condition = ParseExpression();
  Expect(TokenKind::Then, SyntaxErrorNumber::ExpectedThen);
  return {position, condition, {}};
}

Stmt* StatementParser::ParseInlineIf(IfBranch head, Position start) {
  const Nesting nesting(*this);
  const bool outer = std::exchange(m_Enclosing.inlineIf, true);
  List<IfBranch> branches(*this);
  head.body = ParseInlineBody();
  branches.Add(head);
  while (At(TokenKind::ElseIf)) {
    IfBranch branch = ParseIfHead();
    branch.body = ParseInlineBody();
    branches.Add(branch);
  }
  const bool hasElse = Accept(TokenKind::Else);
  const Block otherwise = hasElse ? ParseInlineBody() : Block{};
  if (At(TokenKind::End) && PeekNext().kind == TokenKind::If) {
    Advance();
    Advance();
  }
  m_Enclosing.inlineIf = outer;
  return Make<IfStmt>(Stmt{StmtKind::If, start}, branches.Keep(), otherwise, hasElse);
}

/// Statements up to the next word of the If or to the end of the line.
Block StatementParser::ParseInlineBody() {
  List<Stmt*> statements(*this);
  for (;;) {
    while (At(TokenKind::Colon)) Advance();
    if (At(TokenKind::EndOfLine) || AtBlockEnd()) return statements.Keep();
    if (Stmt* statement = ParseStatement()) statements.Add(statement);
  }
}

Stmt* StatementParser::ParseBlockIf(IfBranch head, Position start) {
  List<IfBranch> branches(*this);
  head.body = ParseBlock(TokenKind::EndOfSource);
  branches.Add(head);
  while (At(TokenKind::ElseIf)) {
    ExpectFirstOnLine();
    IfBranch branch = ParseIfHead();
    branch.body = ParseBlockAfterHead(TokenKind::EndOfSource);
    branches.Add(branch);
  }
  const bool hasElse = At(TokenKind::Else);
  Block otherwise;
  if (hasElse) {
    ExpectFirstOnLine();
    Advance();
    otherwise = ParseBlockAfterHead(TokenKind::EndOfSource);
  }
  ExpectEndIf();
  return Make<IfStmt>(Stmt{StmtKind::If, start}, branches.Keep(), otherwise, hasElse);
}

void StatementParser::ExpectEndIf() {
  if (!At(TokenKind::End)) FailUnclosed(SyntaxErrorNumber::ExpectedEnd);
  if (PeekNext().kind == TokenKind::If) ExpectFirstOnLine();
  Advance();
  Expect(TokenKind::If, SyntaxErrorNumber::ExpectedIf);
}

void StatementParser::ExpectFirstOnLine() const {
  if (!Current().firstOnLine) Fail(SyntaxErrorNumber::MustBeFirstStatement);
}

Stmt* StatementParser::ParseSelect() {
  const Position start = Take().position;
  Expect(TokenKind::Case, SyntaxErrorNumber::ExpectedCase);
  Expr* subject = ParseExpression();
  ExpectEndOfStatement();
  SkipSeparators();
  List<SelectCase> cases(*this);
  bool hasElse = false;
  Block otherwise;
  while (At(TokenKind::Case) && !hasElse) {
    hasElse = PeekNext().kind == TokenKind::Else;
    const SelectCase branch = ParseCase();
    if (hasElse) {
      otherwise = branch.body;
    } else {
      cases.Add(branch);
    }
  }
  if (At(TokenKind::EndOfSource)) Fail(SyntaxErrorNumber::ExpectedEnd);
  if (!At(TokenKind::End))
    FailUnclosed(AtBlockEnd() ? SyntaxErrorNumber::ExpectedEnd : SyntaxErrorNumber::ExpectedCase);
  Advance();
  Expect(TokenKind::Select, SyntaxErrorNumber::ExpectedSelect);
  return Make<SelectStmt>(Stmt{StmtKind::Select, start}, subject, cases.Keep(), otherwise, hasElse);
}

/// `Case a, b` or `Case Else`, which has no values, with its statements.
SelectCase StatementParser::ParseCase() {
  SelectCase branch{Take().position, {}, {}};
  List<Expr*> values(*this);
  if (!Accept(TokenKind::Else)) {
    do {
      values.Add(ParseExpression());
    } while (Accept(TokenKind::Comma));
  }
  branch.values = values.Keep();
  branch.body = ParseBlockAfterHead(TokenKind::EndOfSource);
  return branch;
}

Stmt* StatementParser::ParseWith() {
  const Position start = Take().position;
  Expr* object = ParseExpression();
  ExpectEndOfStatement();
  ++m_WithDepth;
  const Block body = ParseBlock(TokenKind::With);
  --m_WithDepth;
  if (!At(TokenKind::End)) FailUnclosed(SyntaxErrorNumber::ExpectedEnd);
  Advance();
  Expect(TokenKind::With, SyntaxErrorNumber::ExpectedWith);
  return Make<WithStmt>(Stmt{StmtKind::With, start}, object, body);
}

}  // namespace cardwright::vbscript
