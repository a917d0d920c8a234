// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/DeclarationParser.h"

namespace cardwright::vbscript {

void DeclarationParser::ParseScript() {
  m_Enclosing.names = &m_Globals;
  SkipSeparators();
  if (At(TokenKind::Option)) ParseOptionExplicit();
  SyntaxTree& tree = Tree();
  tree.body = ParseBlock(TokenKind::EndOfSource);
  if (!At(TokenKind::EndOfSource)) FailUnclosed(SyntaxErrorNumber::ExpectedStatement);
  tree.procedures = tree.Keep(std::span<ProcedureDecl* const>(m_Procedures));
  tree.classes = tree.Keep(std::span<ClassDecl* const>(m_Classes));
}

void DeclarationParser::ParseOptionExplicit() {
  Advance();
  Expect(TokenKind::Explicit, SyntaxErrorNumber::SyntaxError);
  ExpectEndOfStatement();
  Tree().optionExplicit = true;
}

bool DeclarationParser::IsPlainName(Lexer lexer) {
  const TokenKind next = lexer.Next().kind;
  return IsSeparator(next) || next == TokenKind::Comma || next == TokenKind::LeftParen ||
         next == TokenKind::Equal || next == TokenKind::Dot || next == TokenKind::End;
}

DeclarationParser::Declares DeclarationParser::WhatIsDeclared() const {
  Lexer ahead = LookAhead();
  Token token = Current();
  if (token.kind == TokenKind::Public || token.kind == TokenKind::Private) {
    token = ahead.Next();
    if (token.kind == TokenKind::Class) Fail(SyntaxErrorNumber::ExpectedIdentifier, token.position);
    if (token.kind == TokenKind::Default && !IsPlainName(ahead)) {
      Fail(SyntaxErrorNumber::MustBeInsideClass, token.position);
    }
  }
  switch (token.kind) {
    case TokenKind::Sub:
    case TokenKind::Function: return Declares::Procedure;
    case TokenKind::Class: return Declares::Class;
    case TokenKind::Property: {
      const TokenKind part = ahead.Next().kind;
      if (part == TokenKind::Get || part == TokenKind::Let || part == TokenKind::Set) {
        Fail(IsInProcedure() ? SyntaxErrorNumber::SyntaxError : SyntaxErrorNumber::MustBeInsideClass,
             token.position);
      }
      return Declares::Nothing;
    }
    default: return Declares::Nothing;
  }
}

/// A procedure or class of the script. It may be inside an If, but not inside a loop or a procedure.
bool DeclarationParser::ParseDeclaration() {
  using enum TokenKind;
  switch (Current().kind) {
    case Sub:
    case Function:
    case Class:
    case Property:
    case Public:
    case Private: break;
    default: return false;
  }
  const Declares declares = WhatIsDeclared();
  if (declares == Declares::Nothing) return false;
  if (IsInProcedure() || IsInLoop()) Fail(SyntaxErrorNumber::SyntaxError);
  if (declares == Declares::Class) {
    ParseClass();
  } else {
    ProcedureDecl* procedure = ParseProcedure(ParseModifiers());
    m_Procedures.push_back(procedure);
  }
  return true;
}

DeclarationParser::Modifiers DeclarationParser::ParseModifiers() {
  Modifiers modifiers{.start = Where(), .defaultPosition = {}};
  if (At(TokenKind::Public) || At(TokenKind::Private)) {
    modifiers.visibility = At(TokenKind::Public) ? Visibility::Public : Visibility::Private;
    Advance();
  }
  if (At(TokenKind::Default) && m_Class != nullptr && !IsPlainName(LookAhead())) {
    modifiers.isDefault = true;
    modifiers.defaultPosition = Take().position;
  }
  return modifiers;
}

}  // namespace cardwright::vbscript
