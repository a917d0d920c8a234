// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/StatementParser.h"

#include <utility>

namespace cardwright::vbscript {

bool StatementParser::AtBlockEnd() const {
  using enum TokenKind;
  switch (Current().kind) {
    case EndOfSource:
    case End:
    case Else:
    case ElseIf:
    case Case:
    case Next:
    case Loop:
    case Wend: return true;
    default: return false;
  }
}

/// Whether the current token begins a statement, in the same line as the head before it.
bool StatementParser::AtStatement() const {
  using enum TokenKind;
  switch (Current().kind) {
    case Dot:
    case Call:
    case Const:
    case Dim:
    case Do:
    case Exit:
    case For:
    case If:
    case Me:
    case On:
    case ReDim:
    case Select:
    case Set:
    case Stop:
    case While:
    case With: return true;
    default: return IsName(Current().kind);
  }
}

Block StatementParser::ParseBlock(TokenKind closer) {
  const Nesting nesting(*this);
  const bool outerInline = std::exchange(m_Enclosing.inlineIf, false);
  const TokenKind outerCloser = std::exchange(m_Enclosing.closer, closer);
  List<Stmt*> statements(*this);
  for (SkipSeparators(); !AtBlockEnd(); SkipSeparators()) {
    if (Stmt* statement = ParseStatement()) statements.Add(statement);
  }
  m_Enclosing.inlineIf = outerInline;
  m_Enclosing.closer = outerCloser;
  return statements.Keep();
}

Block StatementParser::ParseBlockAfterHead(TokenKind closer) {
  if (!AtEndOfStatement() && !AtStatement()) Fail(SyntaxErrorNumber::ExpectedEndOfStatement);
  return ParseBlock(closer);
}

void StatementParser::FailUnclosed(SyntaxErrorNumber expected) const {
  if (At(TokenKind::Next)) Fail(SyntaxErrorNumber::UnexpectedNext);
  if (At(TokenKind::Loop)) Fail(SyntaxErrorNumber::LoopWithoutDo);
  Fail(expected);
}

Stmt* StatementParser::ParseStatement() {
  if (ParseDeclaration()) {
    ExpectEndOfStatement();
    return nullptr;
  }
  Stmt* statement = ParseStatementOfKind();
  CheckEnd(*statement);
  return statement;
}

Stmt* StatementParser::ParseStatementOfKind() {
  using enum TokenKind;
  switch (Current().kind) {
    case Dim: {
      const Position start = Take().position;
      return ParseDim(Visibility::Default, start);
    }
    case Const: {
      const Position start = Take().position;
      return ParseConst(Visibility::Default, start);
    }
    case Public:
    case Private: return ParsePublicOrPrivate();
    case ReDim: return ParseReDim();
    case Erase: return ParseErase();
    case Set: return ParseSet();
    case Call: return ParseCallKeyword();
    case If: return ParseIf();
    case Select: return ParseSelect();
    case For: return ParseFor();
    case Do: return ParseDo();
    case While: return ParseWhile();
    case With: return ParseWith();
    case Exit: return ParseExit();
    case On: return ParseOnError();
    case Stop: return ParseStop();
    case Dot:
    case Me: return ParseCallOrAssignment();
    default:
      if (IsName(Current().kind)) return ParseCallOrAssignment();
      Fail(SyntaxErrorNumber::ExpectedStatement);
  }
}

/// In an If of one line, Else, ElseIf and End If end a statement too.
bool StatementParser::AtEndOfStatement() const {
  if (IsSeparator(Current().kind)) return true;
  if (!m_Enclosing.inlineIf) return false;
  if (At(TokenKind::Else) || At(TokenKind::ElseIf)) return true;
  return At(TokenKind::End) && PeekNext().kind == TokenKind::If;
}

void StatementParser::CheckEnd(const Stmt& statement) const {
  if (AtEndOfStatement()) return;
  const bool isClosed = At(TokenKind::End) && MayBeClosedInLine(statement) &&
                        m_Enclosing.closer != TokenKind::EndOfSource && PeekNext().kind == m_Enclosing.closer;
  if (!isClosed) Fail(SyntaxErrorNumber::ExpectedEndOfStatement);
}

/// `x = 1 End Sub` is allowed, `Foo End Sub` is not: there End would be an argument of Foo.
bool StatementParser::MayBeClosedInLine(const Stmt& statement) const {
  if (m_Enclosing.inlineIf) return false;
  switch (statement.kind) {
    case StmtKind::Assign:
    case StmtKind::Const:
    case StmtKind::Dim: return true;
    case StmtKind::Call: {
      const auto& call = static_cast<const CallStmt&>(statement);
      return call.hasKeyword || !call.arguments.empty();
    }
    default: return false;
  }
}

Stmt* StatementParser::ParseExit() {
  const Position start = Take().position;
  ExitKind exit{};
  switch (Current().kind) {
    case TokenKind::Do:
      CheckExit(m_Enclosing.doLoops > 0);
      exit = ExitKind::Do;
      break;
    case TokenKind::For:
      CheckExit(!m_Enclosing.forVariables.empty());
      exit = ExitKind::For;
      break;
    case TokenKind::Sub: exit = ExitKind::Sub; break;
    case TokenKind::Function: exit = ExitKind::Function; break;
    case TokenKind::Property: exit = ExitKind::Property; break;
    default: CheckExit(false);
  }
  if (exit >= ExitKind::Sub) CheckExit(m_Enclosing.procedure == Current().kind);
  Advance();
  return Make<ExitStmt>(Stmt{StmtKind::Exit, start}, exit);
}

void StatementParser::CheckExit(bool isAllowed) const {
  if (!isAllowed) Fail(SyntaxErrorNumber::InvalidExit);
}

Stmt* StatementParser::ParseOnError() {
  const Position start = Take().position;
  Expect(TokenKind::Error, SyntaxErrorNumber::SyntaxError);
  if (Accept(TokenKind::Resume)) {
    Expect(TokenKind::Next, SyntaxErrorNumber::ExpectedNext);
    return Make<OnErrorStmt>(Stmt{StmtKind::OnError, start}, true);
  }
  Expect(TokenKind::GoTo, SyntaxErrorNumber::SyntaxError);
  if (!At(TokenKind::Number) || Current().text != u"0") Fail(SyntaxErrorNumber::SyntaxError);
  Advance();
  return Make<OnErrorStmt>(Stmt{StmtKind::OnError, start}, false);
}

Stmt* StatementParser::ParseStop() { return Make<Stmt>(StmtKind::Stop, Take().position); }

}  // namespace cardwright::vbscript
