// SPDX-License-Identifier: MIT
#include <utility>

#include "cardwright/vbscript/syntax/DeclarationParser.h"

namespace cardwright::vbscript {

void DeclarationParser::ParseClass() {
  const Position start = Take().position;
  const Token name = TakeName();
  Declare(name);
  ExpectEndOfStatement();
  ClassState state;
  m_Class = &state;
  Enclosing outer =
      std::exchange(m_Enclosing, {.names = &state.names, .forVariables = {}, .closer = TokenKind::Class});
  List<const DimStmt*> fields(*this);
  List<const ProcedureDecl*> procedures(*this);
  for (SkipSeparators(); !At(TokenKind::End) && !At(TokenKind::EndOfSource); SkipSeparators()) {
    ParseClassMember(fields, procedures);
  }
  m_Class = nullptr;
  m_Enclosing = std::move(outer);
  Expect(TokenKind::End, SyntaxErrorNumber::ExpectedEnd);
  Expect(TokenKind::Class, SyntaxErrorNumber::ExpectedClass);
  m_Classes.push_back(Make<ClassDecl>(name.text, start, name.position, fields.Keep(), procedures.Keep()));
}

void DeclarationParser::ParseClassMember(List<const DimStmt*>& fields,
                                         List<const ProcedureDecl*>& procedures) {
  if (At(TokenKind::Dim)) {
    const Position start = Take().position;
    fields.Add(ParseDim(Visibility::Default, start));
    return CheckMemberEnd();
  }
  const Modifiers modifiers = ParseModifiers();
  const bool isProperty = At(TokenKind::Property) && !IsPlainName(LookAhead());
  if (At(TokenKind::Sub) || At(TokenKind::Function) || isProperty) {
    CheckDefault(modifiers);
    procedures.Add(ParseProcedure(modifiers));
    return ExpectEndOfStatement();
  }
  if (modifiers.isDefault) Fail(SyntaxErrorNumber::DefaultOnlyOnProcedures);
  if (modifiers.visibility == Visibility::Default) Fail(SyntaxErrorNumber::SyntaxError);
  fields.Add(ParseDim(modifiers.visibility, modifiers.start));
  CheckMemberEnd();
}

/// `Public x End Class` may be written in one line.
void DeclarationParser::CheckMemberEnd() const {
  if (At(TokenKind::End) && PeekNext().kind == TokenKind::Class) return;
  ExpectEndOfStatement();
}

void DeclarationParser::CheckDefault(const Modifiers& modifiers) {
  if (!modifiers.isDefault) return;
  if (modifiers.visibility != Visibility::Public) {
    Fail(SyntaxErrorNumber::DefaultMustBePublic, modifiers.defaultPosition);
  }
  if (At(TokenKind::Property)) {
    const Token part = PeekNext();
    const bool isOtherPart = part.kind == TokenKind::Let || part.kind == TokenKind::Set;
    if (isOtherPart) Fail(SyntaxErrorNumber::DefaultOnlyOnGet, part.position);
  }
  if (m_Class->hasDefault) Fail(SyntaxErrorNumber::MultipleDefaults, modifiers.defaultPosition);
  m_Class->hasDefault = true;
}

/// Checks a member's name and parameters against those of the other members.
void DeclarationParser::CheckMember(const ProcedureDecl& member) {
  const bool isProperty = member.kind >= ProcedureKind::PropertyGet;
  if (!m_Class->names.Declare(member.name, UseOf(member.kind))) {
    Fail(SyntaxErrorNumber::NameRedefined, member.namePosition);
  }
  if (isProperty) return CheckProperty(member);
  const bool isEvent =
      EqualsNoCase(member.name, u"Class_Initialize") || EqualsNoCase(member.name, u"Class_Terminate");
  if (isEvent && !member.parameters.empty())
    Fail(SyntaxErrorNumber::ClassEventArguments, member.namePosition);
}

NameUse DeclarationParser::UseOf(ProcedureKind kind) {
  switch (kind) {
    case ProcedureKind::PropertyGet: return NameUse::PropertyGet;
    case ProcedureKind::PropertyLet: return NameUse::PropertyLet;
    case ProcedureKind::PropertySet: return NameUse::PropertySet;
    default: return NameUse::Procedure;
  }
}

/// Let and Set have the parameters of Get and one more, the value.
void DeclarationParser::CheckProperty(const ProcedureDecl& property) {
  const std::size_t values = property.kind == ProcedureKind::PropertyGet ? 0 : 1;
  if (property.parameters.size() < values)
    Fail(SyntaxErrorNumber::PropertyNeedsArgument, property.namePosition);
  const std::size_t indexes = property.parameters.size() - values;
  const auto [known, isNew] = m_Class->indexes.try_emplace(property.name, indexes);
  if (!isNew && known->second != indexes)
    Fail(SyntaxErrorNumber::InconsistentPropertyArguments, property.namePosition);
}

}  // namespace cardwright::vbscript
