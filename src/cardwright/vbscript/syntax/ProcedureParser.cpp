// SPDX-License-Identifier: MIT
#include <utility>

#include "cardwright/vbscript/syntax/DeclarationParser.h"

namespace cardwright::vbscript {

namespace {

struct ProcedureWord {
  TokenKind word;
  SyntaxErrorNumber missing;  ///< where End is followed by another word
};

constexpr ProcedureWord WordOf(ProcedureKind kind) {
  switch (kind) {
    case ProcedureKind::Sub: return {TokenKind::Sub, SyntaxErrorNumber::ExpectedSub};
    case ProcedureKind::Function: return {TokenKind::Function, SyntaxErrorNumber::ExpectedFunction};
    default: return {TokenKind::Property, SyntaxErrorNumber::ExpectedProperty};
  }
}

}  // namespace

ProcedureDecl* DeclarationParser::ParseProcedure(const Modifiers& modifiers) {
  const ProcedureKind kind = ParseProcedureKind();
  const Token name = TakeName();
  auto* procedure = Make<ProcedureDecl>();
  procedure->kind = kind;
  procedure->visibility = modifiers.visibility;
  procedure->isDefault = modifiers.isDefault;
  procedure->name = name.text;
  procedure->position = modifiers.start;
  procedure->namePosition = name.position;
  if (m_Class == nullptr && !m_Globals.DeclareReplacing(name.text)) {
    Fail(SyntaxErrorNumber::NameRedefined, name.position);
  }
  NameScope names;
  const bool hasParentheses = At(TokenKind::LeftParen);
  if (hasParentheses) procedure->parameters = ParseParameters(names);
  if (m_Class != nullptr) CheckMember(*procedure);
  // The name is the variable of the result, unless a parameter hides it.
  if (kind == ProcedureKind::Function || kind == ProcedureKind::PropertyGet)
    names.Declare(name.text, NameUse::Value);
  ParseProcedureBody(*procedure, names, hasParentheses);
  return procedure;
}

ProcedureKind DeclarationParser::ParseProcedureKind() {
  switch (Take().kind) {
    case TokenKind::Sub: return ProcedureKind::Sub;
    case TokenKind::Function: return ProcedureKind::Function;
    default: return ParsePropertyKind();
  }
}

ProcedureKind DeclarationParser::ParsePropertyKind() {
  if (Accept(TokenKind::Get)) return ProcedureKind::PropertyGet;
  if (Accept(TokenKind::Let)) return ProcedureKind::PropertyLet;
  if (Accept(TokenKind::Set)) return ProcedureKind::PropertySet;
  Fail(SyntaxErrorNumber::ExpectedLetSetGet);
}

std::span<const Parameter> DeclarationParser::ParseParameters(NameScope& names) {
  Advance();
  List<Parameter> parameters(*this);
  if (Accept(TokenKind::RightParen)) return {};
  do {
    parameters.Add(ParseParameter(names));
  } while (Accept(TokenKind::Comma));
  Expect(TokenKind::RightParen, SyntaxErrorNumber::ExpectedRightParen);
  return parameters.Keep();
}

Parameter DeclarationParser::ParseParameter(NameScope& names) {
  const bool byValue = At(TokenKind::ByVal);
  if (byValue || At(TokenKind::ByRef)) Advance();
  const Token name = TakeName();
  if (!names.Declare(name.text, NameUse::Value)) Fail(SyntaxErrorNumber::NameRedefined, name.position);
  const bool isArray = Accept(TokenKind::LeftParen);
  if (isArray) Expect(TokenKind::RightParen, SyntaxErrorNumber::ExpectedRightParen);
  return {name.text, name.position, byValue, isArray};
}

/// After parentheses of parameters the first statement may be in the same line.
void DeclarationParser::ParseProcedureBody(ProcedureDecl& procedure, NameScope& names, bool hasParentheses) {
  const ProcedureWord end = WordOf(procedure.kind);
  Enclosing outer = std::exchange(m_Enclosing, {.procedure = end.word, .names = &names, .forVariables = {}});
  const int outerWith = std::exchange(m_WithDepth, 0);
  if (!hasParentheses) ExpectEndOfStatement();
  procedure.body = ParseBlockAfterHead(end.word);
  if (At(TokenKind::EndOfSource)) Fail(SyntaxErrorNumber::ExpectedEnd);
  if (!At(TokenKind::End)) FailUnclosed(SyntaxErrorNumber::ExpectedStatement);
  procedure.endPosition = Take().position;
  Expect(end.word, end.missing);
  m_Enclosing = std::move(outer);
  m_WithDepth = outerWith;
}

}  // namespace cardwright::vbscript
