// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/vbscript/syntax/ExpressionPrinter.h"

namespace cardwright::vbscript {

/// Writes statements and declarations, one a line, blocks indented.
class StatementPrinter : public ExpressionPrinter {
 public:
  explicit StatementPrinter(const SyntaxTree& tree) : ExpressionPrinter(tree.Source()) { WriteTree(tree); }

  const std::u16string& Result() const { return m_Text; }

 private:
  void WriteTree(const SyntaxTree& tree);
  void WriteClass(const ClassDecl& declared);
  void WriteProcedure(const ProcedureDecl& procedure);

  void WriteBlock(Block block);
  void WriteStatement(const Stmt& statement);
  void WriteNumber(std::int32_t number);
  void Write(const DimStmt& dim);
  void Write(const ReDimStmt& redim);
  void Write(const EraseStmt& erase);
  void Write(const ConstStmt& constants);
  void Write(const AssignStmt& assign);
  void Write(const CallStmt& call);
  void Write(const IfStmt& branches);
  void Write(const SelectStmt& select);
  void Write(const ForStmt& loop);
  void Write(const ForEachStmt& loop);
  void Write(const LoopStmt& loop);
  void Write(const WithStmt& with);

  /// Starts a line with the indentation of the enclosing blocks.
  StatementPrinter& Line();
  void EndLine() { m_Text += u'\n'; }

  std::size_t m_Depth = 0;
};

}  // namespace cardwright::vbscript
