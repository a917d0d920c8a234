// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/vbscript/syntax/ExpressionParser.h"
#include "cardwright/vbscript/syntax/NameScope.h"

namespace cardwright::vbscript {

/// Statements and blocks. Declarations of procedures and classes among them are left to DeclarationParser.
class StatementParser : public ExpressionParser {
 public:
  using ExpressionParser::ExpressionParser;

 protected:
  ~StatementParser() = default;

  /// What encloses a statement, which decides what is allowed in it. A procedure has its own.
  struct Enclosing {
    TokenKind procedure = TokenKind::EndOfSource;  ///< Sub, Function or Property; EndOfSource outside them
    NameScope* names = nullptr;                    ///< where Dim and Const declare
    std::vector<std::u16string_view> forVariables;
    int doLoops = 0;
    int whileLoops = 0;
    bool inlineIf = false;
    /// The word after `End` that closes the current block, where `End` may follow a statement in the same
    /// line.
    TokenKind closer = TokenKind::EndOfSource;
  };

  /// Parses a procedure or a class. Returns false where the current token begins a statement.
  virtual bool ParseDeclaration() = 0;

  /// Statements up to a word that ends a block, or to the end of the source.
  Block ParseBlock(TokenKind closer);
  /// Like ParseBlock, but the first statement may follow the head of the block in the same line.
  Block ParseBlockAfterHead(TokenKind closer);
  /// Fails at a token that does not end the current block. Some words have an error of their own.
  [[noreturn]] void FailUnclosed(SyntaxErrorNumber expected) const;

  DimStmt* ParseDim(Visibility visibility, Position start);
  Stmt* ParseConst(Visibility visibility, Position start);
  void SkipSeparators() {
    while (At(TokenKind::EndOfLine) || At(TokenKind::Colon)) Advance();
  }
  bool AtBlockEnd() const;
  void Declare(const Token& name) {
    if (!m_Enclosing.names->Declare(name.text, NameUse::Value))
      Fail(SyntaxErrorNumber::NameRedefined, name.position);
  }
  bool IsInProcedure() const { return m_Enclosing.procedure != TokenKind::EndOfSource; }
  bool IsInLoop() const {
    return !m_Enclosing.forVariables.empty() || m_Enclosing.doLoops > 0 || m_Enclosing.whileLoops > 0;
  }
  /// At the end of the head of a declaration or block.
  void ExpectEndOfStatement() const {
    if (!AtEndOfStatement()) Fail(SyntaxErrorNumber::ExpectedEndOfStatement);
  }
  bool AtEndOfStatement() const;

  Enclosing m_Enclosing;

 private:
  Stmt* ParseStatement();
  Stmt* ParseStatementOfKind();
  void CheckEnd(const Stmt& statement) const;
  bool MayBeClosedInLine(const Stmt& statement) const;
  bool AtStatement() const;

  Stmt* ParsePublicOrPrivate();
  VariableDecl ParseVariable();
  std::span<const std::int32_t> ParseFixedBounds();
  ConstDecl ParseConstant();
  const Variant* ConstantValue(const Expr& expression);
  Expr* ParseConstantExpression();
  Stmt* ParseReDim();
  ReDimTarget ParseReDimTarget();
  Stmt* ParseErase();
  Stmt* ParseSet();
  Stmt* ParseCallKeyword();
  Stmt* ParseCallOrAssignment();
  Stmt* ParseAssignment(Position start, bool isSet, Expr* target);
  static void CheckCallee(const Expr& callee);
  Expr* ParseBareArguments(Expr* chain, List<Expr*>& arguments);
  Expr* ParseParenthesisedFirst(CallExpr& call, List<Expr*>& arguments);

  Stmt* ParseExit();
  void CheckExit(bool isAllowed) const;
  Stmt* ParseOnError();
  Stmt* ParseStop();

  Stmt* ParseIf();
  IfBranch ParseIfHead();
  Stmt* ParseInlineIf(IfBranch first, Position start);
  Block ParseInlineBody();
  Stmt* ParseBlockIf(IfBranch first, Position start);
  void ExpectEndIf();
  void ExpectFirstOnLine() const;
  Stmt* ParseSelect();
  SelectCase ParseCase();
  Stmt* ParseFor();
  Stmt* ParseForEach(Position start);
  Expr* ParseForVariable();
  Block ParseForBody(const Expr& variable);
  Stmt* ParseDo();
  Expr* ParseDoCondition(LoopKind& loop, LoopKind whileKind, LoopKind untilKind);
  Stmt* ParseWhile();
  Stmt* ParseWith();
};

}  // namespace cardwright::vbscript
