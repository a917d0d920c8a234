// SPDX-License-Identifier: MIT
#include "TreeText.h"

namespace cardwright::vbscript {

namespace {

std::string SourceText(std::u16string_view text) { return Text(text).ToUtf8(); }

constexpr const char* kBinary[] = {"^", "*",  "/", "\\", "Mod", "+",   "-",  "&",   "=",   "<>",
                                   "<", "<=", ">", ">=", "Is",  "And", "Or", "Xor", "Eqv", "Imp"};
constexpr const char* kUnary[] = {"neg ", "plus ", "Not "};
constexpr const char* kVisibility[] = {"Dim", "Public", "Private"};
constexpr const char* kLoops[] = {"Do", "DoWhile", "DoUntil", "LoopWhile", "LoopUntil", "While"};
constexpr const char* kExits[] = {"Do", "For", "Sub", "Function", "Property"};
constexpr const char* kProcedures[] = {"Sub", "Function", "Get", "Let", "Set"};

template <class T>
const char* Word(const char* const* words, T value) {
  return words[static_cast<std::size_t>(value)];
}

std::string TreeList(std::span<Expr* const> list) {
  std::string text;
  for (const Expr* item : list) text += (text.empty() ? "" : ", ") + TreeText(*item);
  return text;
}

std::string Chain(const BinaryExpr& binary) {
  std::string opened, rest;
  const Expr* left = &binary;
  while (left->kind == ExprKind::Binary) {
    const auto& link = static_cast<const BinaryExpr&>(*left);
    opened += "{";
    rest = std::string(" ") + Word(kBinary, link.op) + " " + TreeText(*link.right) + "}" + rest;
    left = link.left;
  }
  return opened + TreeText(*left) + rest;
}

std::string Braced(Block block) { return "{ " + TreeText(block) + " }"; }

std::string DimText(const DimStmt& dim) {
  std::string text = Word(kVisibility, dim.visibility);
  for (const VariableDecl& variable : dim.variables) {
    text += " " + SourceText(variable.name);
    if (!variable.isArray) continue;
    text += "(";
    for (const std::int32_t bound : variable.bounds) text += std::to_string(bound) + ",";
    text += ")";
  }
  return text;
}

std::string IfText(const IfStmt& statement) {
  std::string text;
  for (const IfBranch& branch : statement.branches) {
    text += (text.empty() ? "If " : " ElseIf ") + TreeText(*branch.condition) + " " + Braced(branch.body);
  }
  return text + (statement.hasElse ? " Else " + Braced(statement.otherwise) : "");
}

std::string SelectText(const SelectStmt& select) {
  std::string text = "Select " + TreeText(*select.subject);
  for (const SelectCase& branch : select.cases) {
    text += " Case " + TreeList(branch.values) + " " + Braced(branch.body);
  }
  return text + (select.hasElse ? " Else " + Braced(select.otherwise) : "");
}

std::string ForText(const ForStmt& loop) {
  std::string text =
      "For " + TreeText(*loop.variable) + " " + TreeText(*loop.from) + " To " + TreeText(*loop.to);
  if (loop.step != nullptr) text += " Step " + TreeText(*loop.step);
  return text + " " + Braced(loop.body);
}

std::string ProcedureText(const ProcedureDecl& procedure) {
  std::string text =
      procedure.visibility == Visibility::Default ? "" : Word(kVisibility, procedure.visibility);
  text += std::string(procedure.isDefault ? " Default " : " ") + Word(kProcedures, procedure.kind) + " " +
          SourceText(procedure.name) + "(";
  for (const Parameter& parameter : procedure.parameters) {
    text +=
        (parameter.byValue ? "ByVal " : "") + SourceText(parameter.name) + (parameter.isArray ? "()," : ",");
  }
  return text + ") " + Braced(procedure.body) + "\n";
}

}  // namespace

std::string TreeText(const Expr& expression) {
  switch (expression.kind) {
    case ExprKind::Literal: return SourceText(static_cast<const LiteralExpr&>(expression).spelling);
    case ExprKind::Name: return SourceText(static_cast<const NameExpr&>(expression).name);
    case ExprKind::Member: {
      const auto& member = static_cast<const MemberExpr&>(expression);
      return (member.object != nullptr ? TreeText(*member.object) : "") + "." + SourceText(member.name);
    }
    case ExprKind::Call: {
      const auto& call = static_cast<const CallExpr&>(expression);
      return TreeText(*call.callee) + "[" + TreeList(call.arguments) + "]";
    }
    case ExprKind::Paren: return "<" + TreeText(*static_cast<const ParenExpr&>(expression).inner) + ">";
    case ExprKind::Unary: {
      const auto& unary = static_cast<const UnaryExpr&>(expression);
      return "{" + (Word(kUnary, unary.op) + TreeText(*unary.operand)) + "}";
    }
    case ExprKind::Binary: return Chain(static_cast<const BinaryExpr&>(expression));
    case ExprKind::New: return "New " + SourceText(static_cast<const NewExpr&>(expression).className);
    case ExprKind::Me: return "Me";
    case ExprKind::Missing: return "_";
  }
  return {};
}

std::string TreeText(const Stmt& statement) {
  switch (statement.kind) {
    case StmtKind::Dim: return DimText(static_cast<const DimStmt&>(statement));
    case StmtKind::ReDim: {
      const auto& redim = static_cast<const ReDimStmt&>(statement);
      std::string text = redim.preserve ? "ReDim Preserve" : "ReDim";
      for (const ReDimTarget& target : redim.targets) {
        text += " " + TreeText(*target.array) + "[" + TreeList(target.bounds) + "]";
      }
      return text;
    }
    case StmtKind::Erase: return "Erase " + TreeList(static_cast<const EraseStmt&>(statement).arrays);
    case StmtKind::Const: {
      const auto& constants = static_cast<const ConstStmt&>(statement);
      std::string text =
          constants.visibility == Visibility::Default ? "Const" : Word(kVisibility, constants.visibility);
      for (const ConstDecl& constant : constants.constants) {
        text += " " + SourceText(constant.name) + " = " + TreeText(*constant.expression);
      }
      return text;
    }
    case StmtKind::Assign: {
      const auto& assign = static_cast<const AssignStmt&>(statement);
      return (assign.isSet ? "Set " : "") + TreeText(*assign.target) + " := " + TreeText(*assign.value);
    }
    case StmtKind::Call: {
      const auto& call = static_cast<const CallStmt&>(statement);
      return (call.hasKeyword ? "Call " : "") + TreeText(*call.callee) + "![" + TreeList(call.arguments) +
             "]";
    }
    case StmtKind::If: return IfText(static_cast<const IfStmt&>(statement));
    case StmtKind::Select: return SelectText(static_cast<const SelectStmt&>(statement));
    case StmtKind::For: return ForText(static_cast<const ForStmt&>(statement));
    case StmtKind::ForEach: {
      const auto& loop = static_cast<const ForEachStmt&>(statement);
      return "ForEach " + TreeText(*loop.variable) + " In " + TreeText(*loop.collection) + " " +
             Braced(loop.body);
    }
    case StmtKind::Loop: {
      const auto& loop = static_cast<const LoopStmt&>(statement);
      const std::string condition = loop.condition != nullptr ? " " + TreeText(*loop.condition) : "";
      return Word(kLoops, loop.loop) + condition + " " + Braced(loop.body);
    }
    case StmtKind::With: {
      const auto& with = static_cast<const WithStmt&>(statement);
      return "With " + TreeText(*with.object) + " " + Braced(with.body);
    }
    case StmtKind::Exit:
      return std::string("Exit ") + Word(kExits, static_cast<const ExitStmt&>(statement).exit);
    case StmtKind::OnError:
      return static_cast<const OnErrorStmt&>(statement).resumeNext ? "ResumeNext" : "GoTo0";
    case StmtKind::Stop: return "Stop";
  }
  return {};
}

std::string TreeText(Block block) {
  std::string text;
  for (const Stmt* statement : block) text += (text.empty() ? "" : "; ") + TreeText(*statement);
  return text;
}

std::string TreeText(const SyntaxTree& tree) {
  std::string text = tree.optionExplicit ? "Explicit\n" : "";
  for (const ClassDecl* declared : tree.classes) {
    text += "Class " + SourceText(declared->name) + "\n";
    for (const DimStmt* field : declared->fields) text += DimText(*field) + "\n";
    for (const ProcedureDecl* procedure : declared->procedures) text += ProcedureText(*procedure);
  }
  for (const ProcedureDecl* procedure : tree.procedures) text += ProcedureText(*procedure);
  return text + TreeText(tree.body) + (tree.expression != nullptr ? TreeText(*tree.expression) : "");
}

}  // namespace cardwright::vbscript
