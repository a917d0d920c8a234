// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/vbscript/syntax/StatementParser.h"

namespace cardwright::vbscript {

/// A whole script: its statements, procedures and classes.
class DeclarationParser final : public StatementParser {
 public:
  using StatementParser::StatementParser;

  void ParseScript();

 private:
  /// The words before Sub, Function or Property.
  struct Modifiers {
    Position start;
    Visibility visibility = Visibility::Default;
    bool isDefault = false;
    Position defaultPosition;
  };
  struct ClassState {
    NameScope names;
    NameMap<std::size_t> indexes;  ///< parameters of a property, without the value that Let and Set take last
    bool hasDefault = false;
  };

  enum class Declares { Nothing, Procedure, Class };

  bool ParseDeclaration() override;
  Declares WhatIsDeclared() const;
  /// Whether the contextual keyword that `lexer` has just read is a plain name, judging by the next token.
  static bool IsPlainName(Lexer lexer);
  void ParseOptionExplicit();

  Modifiers ParseModifiers();
  ProcedureDecl* ParseProcedure(const Modifiers& modifiers);
  ProcedureKind ParseProcedureKind();
  ProcedureKind ParsePropertyKind();
  std::span<const Parameter> ParseParameters(NameScope& names);
  Parameter ParseParameter(NameScope& names);
  void ParseProcedureBody(ProcedureDecl& procedure, NameScope& names, bool hasParentheses);

  void ParseClass();
  void ParseClassMember(List<const DimStmt*>& fields, List<const ProcedureDecl*>& procedures);
  void CheckMemberEnd() const;
  void CheckDefault(const Modifiers& modifiers);
  void CheckMember(const ProcedureDecl& member);
  void CheckProperty(const ProcedureDecl& property);
  static NameUse UseOf(ProcedureKind kind);

  NameScope m_Globals;
  ClassState* m_Class = nullptr;  ///< the class being parsed
  std::vector<ProcedureDecl*> m_Procedures;
  std::vector<ClassDecl*> m_Classes;
};

}  // namespace cardwright::vbscript
