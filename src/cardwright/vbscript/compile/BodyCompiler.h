// SPDX-License-Identifier: MIT
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

/// Shared by all bodies of one source text.
struct CompileContext {
  Linkage& linkage;
  Module& module;
  const BlockNames& block;
  bool isExplicit = false;
  bool isObserved = false;
};

/// Compiles one body: of a procedure, of the code outside procedures, of an expression.
///
/// Registers are laid out when the names of the body are known, before any code: parameters, the function's
/// result, variables, hidden registers of nested loops and blocks, and from `firstTemporary` on the
/// temporaries, which CodeBuilder allocates like a stack. `x = a(i) + 1` with variables of the procedure
/// compiles to
///
///     GetElement t1 a i    t1 = a(i); should `a` be no array, a call with the argument i in t1
///     Move t0 t1           the left operand, in the temporary that was allocated for it
///     Add x t0 1           operators write straight into a variable
class BodyCompiler {
 public:
  /// `start` is the position of the body, for errors before its first statement.
  BodyCompiler(const CompileContext& context, Procedure& procedure, const ClassInfo* owner,
               Position start = {})
      : m_Context(context), m_Procedure(procedure), m_Owner(owner), m_Code(procedure, start) {}

  /// @name Variables, before any code
  /// @{
  void AddParameter(NameId name, bool byValue);
  /// The variable that a function returns.
  void AddResult(NameId name);
  /// The parameter of that name refers to the result variable of the enclosing function.
  void MarkResult(NameId name);
  std::uint16_t AddVariable(NameId name);
  void AddConstant(NameId name, const Variant* value);
  bool Knows(NameId name) const { return m_Locals.contains(name); }
  /// Registers for the names that a procedure's body declares and uses.
  void AddNames(const NamesOfBody& names);
  /// The last step, after all variables: fixes the hidden registers and the first temporary, and dims the
  /// arrays. AddNames ends with it; code whose variables are added one by one calls it alone.
  void LayOutRegisters(const NamesOfBody& names);
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
  enum class BindingKind { Register, Constant, Field, Member, Symbol };
  /// What a name stands for, as far as the compiler knows: a symbol is bound when the code runs.
  struct Binding {
    BindingKind kind;
    NameId name;
    std::uint16_t r = kNoRegister;
    bool isReference = false;
    bool isResult = false;
    std::uint32_t index = 0;  ///< of a field or symbol
    const Variant* constant = nullptr;
    SymbolKind symbol = SymbolKind::Unbound;

    /// A variable of the procedure or a field of its object. A function's result variable is none here: its
    /// name with parentheses is a call of the function.
    bool IsOwnVariable() const noexcept {
      return (kind == BindingKind::Register && !isResult) || kind == BindingKind::Field;
    }
    bool IsModuleVariable() const noexcept {
      return kind == BindingKind::Symbol && symbol == SymbolKind::Variable;
    }
    bool IsLibraryFunction() const noexcept {
      return kind == BindingKind::Symbol && symbol == SymbolKind::Builtin;
    }
    /// Whether it can be referred to and assigned.
    bool IsStorage() const noexcept {
      return kind == BindingKind::Register || kind == BindingKind::Field || kind == BindingKind::Symbol;
    }
  };
  /// An operand of an instruction: a register or a constant of the procedure.
  struct Operand {
    std::uint16_t index;
    bool isConstant;
  };
  /// One or two indices of an element.
  struct Indices {
    Operand first;
    Operand second{0, false};
    bool areTwo = false;

    std::uint8_t Flags() const noexcept;
  };
  /// The opcodes that read, or write, an element of an array in each kind of variable.
  struct ElementOps {
    Op ofRegister, ofRegister2, ofSymbol, ofField;
  };
  struct Loop {
    ExitKind exit;
    Label* end;
    std::size_t hidden;  ///< hidden registers in use outside it
  };
  using Expressions = std::span<Expr* const>;

  // NameResolution.cpp
  Binding Resolve(NameId name);
  Binding Resolve(const Expr& nameExpr) {
    return Resolve(m_Context.linkage.names.Add(static_cast<const NameExpr&>(nameExpr).name));
  }
  Binding ResolveCallee(const Expr& nameExpr);
  SymbolKind KindOf(NameId name, const Variant*& constant);
  std::uint32_t SymbolIndex(NameId name);
  NameId ObjectName(const Expr& expression);
  bool MayRunScript(const Expr* expression);
  bool MayRunScript(const CallExpr& call);

  // Expressions.cpp
  Operand CompileOperand(const Expr& expression);
  std::uint16_t CompileToRegister(const Expr& expression);
  void CompileInto(const Expr& expression, std::uint16_t target);
  void LoadBinding(const Binding& binding, std::uint16_t target);
  void CompileUnary(const UnaryExpr& expression, std::uint16_t target);
  void CompileBinaryChain(const BinaryExpr& expression, std::uint16_t target);
  Operand KeepAcross(Operand operand, const Expr& later);
  void EmitBinary(BinaryOperator op, std::uint16_t target, Operand left, Operand right);
  const Variant* FoldedConstant(const Expr& expression, Variant& storage);
  void LoadConstant(const Variant& value, std::uint16_t target);
  void CompileCondition(const Expr& condition, bool when, Label& label);

  // CallExpressions.cpp
  void CompileCall(const CallExpr& call, std::uint16_t target);
  void CompileCallStatement(const CallStmt& statement);
  std::uint16_t EmitCall(const Binding& binding, Expressions arguments, std::uint16_t flags);
  std::uint16_t EmitCallOfValue(const Binding& binding, Expressions arguments, std::uint16_t flags);
  std::uint16_t EmitMemberCall(const MemberExpr& member, Expressions arguments, std::uint16_t flags);
  std::uint16_t EmitCallOfMe(NameId name, Expressions arguments, std::uint16_t flags);
  void EmitMemberWord(const MemberExpr& member);
  std::uint16_t ObjectOf(const MemberExpr& member);
  enum class Passing { ByValue, ByReference };
  std::uint16_t EmitArguments(Expressions arguments, Passing passing, std::size_t further = 0);
  void EmitReference(const Expr& argument, std::uint16_t target);
  void EmitReferenceTo(const Binding& binding, std::uint16_t target);
  void EmitElementReference(const CallExpr& call, const Binding& binding, std::uint16_t target);
  std::uint8_t Count(std::size_t arguments) const;

  // ElementAccess.cpp
  static bool AreFewIndices(Expressions indices);
  Indices CompileIndices(Expressions indices, const Expr* value);
  void EmitElement(const ElementOps& ops, const Binding& array, std::uint16_t value, const Indices& indices);
  bool CompileElement(const Binding& binding, Expressions indices, std::uint16_t target);
  void AssignElement(const CallExpr& target, const AssignStmt& statement);
  void AssignElementOf(const Binding& binding, const CallExpr& target, const AssignStmt& statement);
  void AssignIndexed(std::uint16_t holder, const CallExpr& target, const AssignStmt& statement);
  std::uint16_t EmitElementPath(const Expr& expression);

  // Assignments.cpp
  void CompileAssign(const AssignStmt& statement);
  void AssignName(const Binding& binding, const AssignStmt& statement);
  void AssignMember(const MemberExpr& member, Expressions arguments, const AssignStmt& statement);
  std::uint16_t EmitArgumentsAndValue(Expressions arguments, Passing passing, const AssignStmt& statement);
  bool CompileAppend(const Binding& binding, const AssignStmt& statement);
  void EmitAppend(const Binding& binding, Operand tail);
  void Store(const Binding& binding, std::uint16_t value, bool isSet);
  void EmitIllegalAssignment(const Binding& binding);

  // Statements.cpp
  void CompileBlock(Block body);
  void CompileStatement(const Stmt& statement);
  void CompileSimpleStatement(const Stmt& statement);
  void CompileIf(const IfStmt& statement);
  void CompileSelect(const SelectStmt& statement);
  void CompileCase(const SelectCase& part, const SelectStmt& statement, std::uint16_t subject, Label& end);
  void CompileWith(const WithStmt& statement);
  void CompileExit(const ExitStmt& statement);
  void CompileReDim(const ReDimStmt& statement);
  void ReDimMember(const MemberExpr& member, std::uint16_t bounds, std::uint8_t count, bool preserve);
  void EmitReDim(std::uint16_t reference, std::uint16_t bounds, std::uint8_t count, bool preserve);
  void CompileErase(const EraseStmt& statement);
  void EmitReturn();
  std::size_t Mark(Position position);
  void DimArrays(const NamesOfBody& names);
  std::uint16_t TakeHidden(std::uint16_t count);
  void ReleaseHidden(std::uint16_t first, std::uint16_t count);

  // LoopStatements.cpp
  std::uint16_t EmitControlVariable(const Binding& binding, std::uint16_t reference);
  void CompileFor(const ForStmt& statement);
  void EmitForBounds(const ForStmt& statement, std::uint16_t bounds);
  void CompileForEach(const ForEachStmt& statement);
  void CompileLoop(const LoopStmt& statement);
  void CompileLoopBody(ExitKind exit, Label& end, std::size_t outside, Block body);

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
  std::vector<std::uint16_t> m_Withs;  // registers of the objects of With blocks
};

}  // namespace cardwright::vbscript
