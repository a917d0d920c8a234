// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "cardwright/automation/Variant.h"
#include "cardwright/vbscript/syntax/Position.h"

/// The parse tree: plain nodes that refer to each other and to the characters of the source. A SyntaxTree
/// owns all of them. Names keep the spelling of the source, without brackets; names that differ only in case
/// are equal.
namespace cardwright::vbscript {

enum class UnaryOperator : std::uint8_t { Negate, Plus, Not };
enum class BinaryOperator : std::uint8_t {
  Power,
  Multiply,
  Divide,
  IntegerDivide,
  Modulo,
  Add,
  Subtract,
  Concatenate,
  Equal,
  NotEqual,
  Less,
  LessOrEqual,
  Greater,
  GreaterOrEqual,
  Is,
  And,
  Or,
  Xor,
  Eqv,
  Imp,
};

/// @name Expressions
/// @{
enum class ExprKind : std::uint8_t { Literal, Name, Member, Call, Paren, Unary, Binary, New, Me, Missing };

struct Expr {
  ExprKind kind;
  Position position;  ///< of its first token; of the operator for Binary
};
/// A number, text, date, True, False, Empty, Null or Nothing.
struct LiteralExpr : Expr {
  const Variant* value;
  std::u16string_view spelling;
};
struct NameExpr : Expr {
  std::u16string_view name;
};
/// `object.name`; without an object `.name` of the innermost With.
struct MemberExpr : Expr {
  Expr* object;  ///< null inside With
  std::u16string_view name;
  Position namePosition;
};
/// `callee(arguments)`: an index, a call or a property with parameters. Which of them is known only at run
/// time.
struct CallExpr : Expr {
  Expr* callee;
  std::span<Expr* const> arguments;  ///< an argument left out is Missing
};
/// Parentheses of the author's own. They matter: an argument in parentheses is passed by value.
struct ParenExpr : Expr {
  Expr* inner;
};
struct UnaryExpr : Expr {
  UnaryOperator op;
  Expr* operand;
};
struct BinaryExpr : Expr {
  BinaryOperator op;
  Expr* left;  ///< chains nest to the left and may be very long: walk them with a loop
  Expr* right;
};
struct NewExpr : Expr {
  std::u16string_view className;
};
/// @}

/// @name Statements
/// @{
enum class StmtKind : std::uint8_t {
  Dim,
  ReDim,
  Erase,
  Const,
  Assign,
  Call,
  If,
  Select,
  For,
  ForEach,
  Loop,
  With,
  Exit,
  OnError,
  Stop,
};

struct Stmt {
  StmtKind kind;
  Position position;  ///< of its first token
};
using Block = std::span<Stmt* const>;

enum class Visibility : std::uint8_t { Default, Public, Private };

/// One name of a Dim, Public or Private: `x`, `x()` or `x(3, 4)`.
struct VariableDecl {
  std::u16string_view name;
  Position position;
  bool isArray;
  std::span<const std::int32_t> bounds;  ///< upper bounds; none for a dynamic array
};
struct DimStmt : Stmt {
  Visibility visibility;
  std::span<const VariableDecl> variables;
};
struct ReDimTarget {
  Expr* array;  ///< a Name or a Member
  Position position;
  std::span<Expr* const> bounds;
};
struct ReDimStmt : Stmt {
  bool preserve;
  std::span<const ReDimTarget> targets;
};
struct EraseStmt : Stmt {
  std::span<Expr* const> arrays;
};
struct ConstDecl {
  std::u16string_view name;
  Position position;
  const Variant* value;  ///< with its sign applied
  Expr* expression;      ///< as written
};
struct ConstStmt : Stmt {
  Visibility visibility;
  std::span<const ConstDecl> constants;
};
/// `target = value` and `Set target = value`.
struct AssignStmt : Stmt {
  bool isSet;
  Expr* target;  ///< Name, Member or Call
  Expr* value;
};
/// A procedure call as a statement, with or without `Call`.
struct CallStmt : Stmt {
  bool hasKeyword;
  Expr* callee;  ///< Name, Member or Call; `arguments` are not part of it
  std::span<Expr* const> arguments;
};
struct IfBranch {
  Position position;  ///< of If or ElseIf
  Expr* condition;
  Block body;
};
struct IfStmt : Stmt {
  std::span<const IfBranch> branches;
  Block otherwise;
  bool hasElse;
};
struct SelectCase {
  Position position;
  std::span<Expr* const> values;
  Block body;
};
struct SelectStmt : Stmt {
  Expr* subject;
  std::span<const SelectCase> cases;
  Block otherwise;
  bool hasElse;
};
struct ForStmt : Stmt {
  Expr* variable;  ///< a Name
  Expr* from;
  Expr* to;
  Expr* step;  ///< null where not written
  Block body;
  Position nextPosition;
};
struct ForEachStmt : Stmt {
  Expr* variable;
  Expr* collection;
  Block body;
  Position nextPosition;
};
enum class LoopKind : std::uint8_t { Endless, DoWhile, DoUntil, LoopWhile, LoopUntil, WhileWend };
struct LoopStmt : Stmt {
  LoopKind loop;
  Expr* condition;  ///< null for Endless
  Block body;
  Position endPosition;  ///< of Loop or Wend
};
struct WithStmt : Stmt {
  Expr* object;
  Block body;
};
enum class ExitKind : std::uint8_t { Do, For, Sub, Function, Property };
struct ExitStmt : Stmt {
  ExitKind exit;
};
struct OnErrorStmt : Stmt {
  bool resumeNext;  ///< else GoTo 0
};
/// @}

/// @name Declarations. They apply to the whole script, so they are kept apart from the statements.
/// @{
struct Parameter {
  std::u16string_view name;
  Position position;
  bool byValue;
  bool isArray;  ///< `x()`
};
enum class ProcedureKind : std::uint8_t { Sub, Function, PropertyGet, PropertyLet, PropertySet };
struct ProcedureDecl {
  ProcedureKind kind;
  Visibility visibility;
  bool isDefault;
  std::u16string_view name;
  Position position;  ///< of its first token
  Position namePosition;
  Position endPosition;  ///< of its End
  std::span<const Parameter> parameters;
  Block body;
};
struct ClassDecl {
  std::u16string_view name;
  Position position;
  Position namePosition;
  std::span<const DimStmt* const> fields;
  std::span<const ProcedureDecl* const> procedures;
};
/// @}

}  // namespace cardwright::vbscript
