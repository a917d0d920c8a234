#pragma once

#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "cardwright/vbscript/code/Linkage.h"
#include "cardwright/vbscript/compile/BlockNames.h"
#include "cardwright/vbscript/compile/CodeBuilder.h"
#include "cardwright/vbscript/compile/NameCollector.h"
#include "cardwright/vbscript/syntax/SyntaxTree.h"

namespace cardwright::vbscript {

/// What all bodies of one source text share.
struct CompileContext {
  Linkage& linkage;
  Module& module;
  const BlockNames& block;
  bool isExplicit = false;
  bool isObserved = false;
};

/// Compiles one body: of a procedure, of what stands outside procedures, of an expression.
class BodyCompiler {
 public:
  /// `start` is the place of the body, for errors before its first statement.
  BodyCompiler(const CompileContext& context, Procedure& procedure, const ClassInfo* owner,
               Position start = {})
      : m_Context(context), m_Procedure(procedure), m_Owner(owner), m_Code(procedure, start) {}

  /// @name Variables, before any code
  /// @{
  void AddParameter(NameId name, bool byValue);
  /// The variable that a function returns.
  void AddResult(NameId name);
  /// The parameter of that name refers to the variable that the function around returns.
  void MarkResult(NameId name);
  std::uint16_t AddVariable(NameId name);
  void AddConstant(NameId name, const Variant* value);
  bool Knows(NameId name) const { return m_Locals.contains(name); }
  /// Registers for what a procedure's body declares and mentions.
  void AddNames(const NamesOfBody& names);
  /// Likewise of code outside procedures, or executed in a procedure's scope: its variables have been added.
  void AddOutermostNames(const NamesOfBody& names);
  /// @}

  void CompileBody(Block body);
  /// The value of the expression becomes the result.
  void CompileResult(const Expr& expression, std::uint16_t result);

 private:
  struct Local {
    std::uint16_t r = kNoRegister;
    bool isReference = false;  ///< a parameter, which may refer to the caller's variable
    bool isResult = false;
    const Variant* constant = nullptr;
  };
  enum class PlaceKind { Register, Constant, Field, Member, Symbol };
  /// What a name stands for as far as the compiler knows.
  struct Place {
    PlaceKind kind;
    NameId name;
    std::uint16_t r = kNoRegister;
    bool isReference = false;
    bool isResult = false;
    std::uint32_t index = 0;  ///< of a field or symbol
    const Variant* constant = nullptr;
    SymbolKind symbol = SymbolKind::Unbound;
  };
  struct Operand {
    std::uint16_t index;
    bool isConstant;
  };
  struct Loop {
    ExitKind exit;
    Label* end;
    std::size_t hidden;  ///< hidden registers in use outside it
  };

  // Places.cpp
  Place Find(NameId name);
  Place Find(const Expr& nameExpr) {
    return Find(m_Context.linkage.names.Add(static_cast<const NameExpr&>(nameExpr).name));
  }
  SymbolKind KindOf(NameId name, const Variant*& constant);
  std::uint32_t SymbolIndex(NameId name);
  NameId ObjectName(const Expr& expression);
  bool MayRunScript(const Expr* expression);

  // Expressions.cpp
  Operand Evaluate(const Expr& expression);
  std::uint16_t EvaluateToRegister(const Expr& expression);
  void EvaluateInto(const Expr& expression, std::uint16_t target);
  void EvaluateName(const Place& place, std::uint16_t target);
  void EvaluateUnary(const UnaryExpr& expression, std::uint16_t target);
  void EvaluateChain(const BinaryExpr& expression, std::uint16_t target);
  Operand KeepAcross(Operand operand, const Expr& later);
  void EmitBinary(BinaryOperator op, std::uint16_t target, Operand left, Operand right);
  const Variant* FoldedConstant(const Expr& expression, Variant& storage);
  void LoadConstant(const Variant& value, std::uint16_t target);
  void JumpOn(const Expr& condition, bool when, Label& label);

  // Calls.cpp
  void EvaluateCall(const CallExpr& call, std::uint16_t target);
  void EvaluateMember(const MemberExpr& member, std::span<Expr* const> arguments, std::uint16_t target);
  bool EvaluateElement(const Place& place, std::span<Expr* const> indices, std::uint16_t target);
  std::uint16_t ObjectOf(const MemberExpr& member);
  enum class Passing { ByValue, ByReference };
  std::uint16_t EmitArguments(std::span<Expr* const> arguments, Passing passing, std::size_t further = 0);
  void EmitReference(const Expr& argument, std::uint16_t target);
  void EmitElementReference(const CallExpr& call, const Place& place, std::uint16_t target);
  std::uint8_t Count(std::size_t arguments) const;
  void CallPlace(const Place& place, std::span<Expr* const> arguments, std::uint16_t flags,
                 std::uint16_t* result);
  void CompileCall(const CallStmt& statement);

  // Assignments.cpp
  void CompileAssign(const AssignStmt& statement);
  void AssignName(const Place& place, const AssignStmt& statement);
  void AssignElement(const CallExpr& target, const AssignStmt& statement);
  void AssignMember(const MemberExpr& member, std::span<Expr* const> arguments, const AssignStmt& statement);
  bool CompileAppend(const Place& place, const AssignStmt& statement);
  void Store(const Place& place, std::uint16_t value, bool isSet);
  void EmitHolder(const Place& place, std::uint16_t target);
  std::uint16_t EmitElementPath(const Expr& place);
  void EmitIllegalAssignment(const Place& place);

  // Statements.cpp
  void CompileBlock(Block body);
  void CompileStatement(const Stmt& statement);
  void CompileIf(const IfStmt& statement);
  void CompileSelect(const SelectStmt& statement);
  std::uint16_t EmitControlVariable(const Place& place, std::uint16_t holder);
  void CompileFor(const ForStmt& statement);
  void CompileForEach(const ForEachStmt& statement);
  void CompileLoop(const LoopStmt& statement);
  void CompileWith(const WithStmt& statement);
  void EmitReturn();
  void CompileExit(const ExitStmt& statement);
  void CompileReDim(const ReDimStmt& statement);
  void CompileErase(const EraseStmt& statement);
  std::size_t Mark(Position position);
  void DimArrays(const NamesOfBody& names);
  std::uint16_t TakeHidden(std::uint16_t count);
  void ReleaseHidden(std::uint16_t first, std::uint16_t count);

  const CompileContext& m_Context;
  Procedure& m_Procedure;
  const ClassInfo* m_Owner;
  CodeBuilder m_Code;
  std::unordered_map<NameId, Local> m_Locals;
  std::unordered_map<NameId, std::uint32_t> m_Symbols;
  std::unordered_set<NameId> m_Assigned;  // names that the body assigns
  std::uint32_t m_Registers = 0;
  std::uint32_t m_FirstHidden = 0;
  std::uint32_t m_Hidden = 0;  // hidden registers in use
  std::vector<Loop> m_Loops;
  std::vector<std::uint16_t> m_Withs;
};

}  // namespace cardwright::vbscript
