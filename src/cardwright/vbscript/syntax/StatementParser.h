#pragma once

#include "cardwright/vbscript/syntax/ExpressionParser.h"
#include "cardwright/vbscript/syntax/NameScope.h"

namespace cardwright::vbscript {

/// Statements and blocks. Declarations of procedures and classes may stand among the statements of a script;
/// the parser of declarations takes those.
class StatementParser : public ExpressionParser {
 public:
  using ExpressionParser::ExpressionParser;

 protected:
  ~StatementParser() = default;

  /// What a statement's surroundings allow and forbid. A procedure's body starts with new ones.
  struct Surroundings {
    TokenKind procedure = TokenKind::EndOfSource;  ///< Sub, Function or Property; EndOfSource outside them
    NameScope* names = nullptr;                    ///< where Dim and Const declare
    std::vector<std::u16string_view> forVariables;
    int doLoops = 0;
    int whileLoops = 0;
    bool inlineIf = false;
    /// What ends the block at hand behind `End`, where that may follow a statement with nothing between.
    TokenKind closer = TokenKind::EndOfSource;
  };

  /// Takes a procedure, a class or what only looks like one. Nothing where a statement is at hand.
  virtual bool ParseDeclaration() = 0;

  /// The statements up to a word that ends some block, or to the end of the source.
  Block ParseBlock(TokenKind closer);
  /// As ParseBlock, but the first statement may stand right behind the block's head.
  Block ParseBlockBehindHead(TokenKind closer);
  /// A block met what does not end it. Some words have an error of their own.
  [[noreturn]] void FailUnclosed(SyntaxErrorNumber expected) const;

  DimStmt* ParseDim(Visibility visibility, Position start);
  Stmt* ParseConst(Visibility visibility, Position start);
  void SkipSeparators() {
    while (At(TokenKind::EndOfLine) || At(TokenKind::Colon)) Advance();
  }
  bool AtBlockEnd() const;
  void Declare(const Token& name) {
    if (!m_Around.names->Declare(name.text, NameUse::Value))
      Fail(SyntaxErrorNumber::NameRedefined, name.position);
  }
  bool IsInProcedure() const { return m_Around.procedure != TokenKind::EndOfSource; }
  bool IsInLoop() const {
    return !m_Around.forVariables.empty() || m_Around.doLoops > 0 || m_Around.whileLoops > 0;
  }
  /// The end of a declaration's or a block's head.
  void ExpectEndOfStatement() const {
    if (!AtEndOfStatement()) Fail(SyntaxErrorNumber::ExpectedEndOfStatement);
  }
  bool AtEndOfStatement() const;

  Surroundings m_Around;

 private:
  Stmt* ParseStatement();
  Stmt* ParseStatementOfKind();
  void CheckEnd(const Stmt& statement) const;
  bool MayCloseBehind(const Stmt& statement) const;
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
