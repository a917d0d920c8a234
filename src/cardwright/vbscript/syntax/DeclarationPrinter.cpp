// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/StatementPrinter.h"

namespace cardwright::vbscript {

namespace {

struct ProcedureWords {
  std::u16string_view head, end;
};

constexpr ProcedureWords WordsOf(ProcedureKind kind) {
  switch (kind) {
    case ProcedureKind::Sub: return {u"Sub ", u"End Sub\n"};
    case ProcedureKind::Function: return {u"Function ", u"End Function\n"};
    case ProcedureKind::PropertyGet: return {u"Property Get ", u"End Property\n"};
    case ProcedureKind::PropertyLet: return {u"Property Let ", u"End Property\n"};
    case ProcedureKind::PropertySet: return {u"Property Set ", u"End Property\n"};
  }
  return {};
}

constexpr std::u16string_view SpellingOf(Visibility visibility) {
  switch (visibility) {
    case Visibility::Default: return {};
    case Visibility::Public: return u"Public ";
    case Visibility::Private: return u"Private ";
  }
  return {};
}

}  // namespace

/// Declarations apply to the whole script, so they are written first.
void StatementPrinter::WriteTree(const SyntaxTree& tree) {
  if (tree.expression != nullptr) *this << *tree.expression;
  if (tree.optionExplicit) *this << u"Option Explicit\n";
  for (const ClassDecl* declared : tree.classes) WriteClass(*declared);
  for (const ProcedureDecl* procedure : tree.procedures) WriteProcedure(*procedure);
  for (const Stmt* statement : tree.body) WriteStatement(*statement);
}

void StatementPrinter::WriteClass(const ClassDecl& declared) {
  *this << u"Class ";
  WriteName(declared.name);
  EndLine();
  ++m_Depth;
  for (const DimStmt* field : declared.fields) WriteStatement(*field);
  for (const ProcedureDecl* procedure : declared.procedures) WriteProcedure(*procedure);
  --m_Depth;
  *this << u"End Class\n";
}

void StatementPrinter::WriteProcedure(const ProcedureDecl& procedure) {
  const ProcedureWords words = WordsOf(procedure.kind);
  Line() << SpellingOf(procedure.visibility) << (procedure.isDefault ? u"Default " : u"") << words.head;
  WriteName(procedure.name);
  *this << u"(";
  for (const Parameter& parameter : procedure.parameters) {
    if (&parameter != procedure.parameters.data()) *this << u", ";
    *this << (parameter.byValue ? u"ByVal " : u"");
    WriteName(parameter.name);
    *this << (parameter.isArray ? u"()" : u"");
  }
  *this << u")\n";
  WriteBlock(procedure.body);
  Line() << words.end;
}

void StatementPrinter::WriteNumber(std::int32_t number) {
  for (const char digit : std::to_string(number)) m_Text += static_cast<char16_t>(digit);
}

void StatementPrinter::Write(const DimStmt& dim) {
  *this << (dim.visibility == Visibility::Default ? u"Dim " : SpellingOf(dim.visibility));
  for (const VariableDecl& variable : dim.variables) {
    if (&variable != dim.variables.data()) *this << u", ";
    WriteName(variable.name);
    if (!variable.isArray) continue;
    *this << u"(";
    for (std::size_t i = 0; i < variable.bounds.size(); ++i) {
      if (i > 0) *this << u", ";
      WriteNumber(variable.bounds[i]);
    }
    *this << u")";
  }
}

void StatementPrinter::Write(const ConstStmt& constants) {
  *this << SpellingOf(constants.visibility) << u"Const ";
  for (const ConstDecl& constant : constants.constants) {
    if (&constant != constants.constants.data()) *this << u", ";
    WriteName(constant.name);
    *this << u" = " << *constant.expression;
  }
}

}  // namespace cardwright::vbscript
