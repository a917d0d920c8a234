// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/compile/NameCollector.h"

#include <algorithm>

namespace cardwright::vbscript {

namespace {

class Collector {
 public:
  explicit Collector(Names& names) : m_Names(names) {}

  void Visit(Block body) {
    for (const Stmt* statement : body) Visit(*statement);
  }
  void Visit(const Expr* expression);
  NamesOfBody Take() { return std::move(m_Found); }

 private:
  void Visit(const Stmt& statement);
  void VisitAll(std::span<Expr* const> expressions) {
    for (const Expr* expression : expressions) Visit(expression);
  }
  void Nested(std::uint16_t registers, Block body) {
    m_Hidden = static_cast<std::uint16_t>(m_Hidden + registers);
    m_Found.hidden = std::max(m_Found.hidden, m_Hidden);
    Visit(body);
    m_Hidden = static_cast<std::uint16_t>(m_Hidden - registers);
  }
  void Mention(NameId name) {
    if (m_Mentioned.insert(name).second) m_Found.mentioned.push_back(name);
  }
  void Declare(NameId name) {
    if (m_Declared.insert(name).second) m_Found.variables.push_back(name);
  }
  void Assign(const Expr* target) {
    const Expr* base = target;
    while (base->kind == ExprKind::Call) base = static_cast<const CallExpr*>(base)->callee;
    if (base->kind == ExprKind::Name)
      m_Found.assigned.insert(m_Names.Add(static_cast<const NameExpr*>(base)->name));
    Visit(target);
  }
  void Visit(const DimStmt& statement);
  void Visit(const ReDimStmt& statement);
  void Visit(const ConstStmt& statement);
  void Visit(const AssignStmt& statement);
  void Visit(const CallStmt& statement);
  void Visit(const IfStmt& statement);
  void Visit(const SelectStmt& statement);
  void Visit(const ForStmt& statement);
  void Visit(const ForEachStmt& statement);
  void Visit(const LoopStmt& statement);
  void Visit(const WithStmt& statement);

  Names& m_Names;
  NamesOfBody m_Found;
  std::unordered_set<NameId> m_Mentioned, m_Declared;
  std::uint16_t m_Hidden = 0;
};

void Collector::Visit(const Expr* expression) {
  while (expression) {
    switch (expression->kind) {
      case ExprKind::Name: Mention(m_Names.Add(static_cast<const NameExpr*>(expression)->name)); return;
      case ExprKind::Member: expression = static_cast<const MemberExpr*>(expression)->object; break;
      case ExprKind::Call: {
        const auto* call = static_cast<const CallExpr*>(expression);
        VisitAll(call->arguments);
        expression = call->callee;
        break;
      }
      case ExprKind::Paren: expression = static_cast<const ParenExpr*>(expression)->inner; break;
      case ExprKind::Unary: expression = static_cast<const UnaryExpr*>(expression)->operand; break;
      case ExprKind::Binary: {
        const auto* binary = static_cast<const BinaryExpr*>(expression);
        Visit(binary->right);
        expression = binary->left;
        break;
      }
      case ExprKind::Literal:
      case ExprKind::New:
      case ExprKind::Me:
      case ExprKind::Missing: return;
    }
  }
}

void Collector::Visit(const Stmt& statement) {
  switch (statement.kind) {
    case StmtKind::Dim: return Visit(static_cast<const DimStmt&>(statement));
    case StmtKind::ReDim: return Visit(static_cast<const ReDimStmt&>(statement));
    case StmtKind::Erase: return VisitAll(static_cast<const EraseStmt&>(statement).arrays);
    case StmtKind::Const: return Visit(static_cast<const ConstStmt&>(statement));
    case StmtKind::Assign: return Visit(static_cast<const AssignStmt&>(statement));
    case StmtKind::Call: return Visit(static_cast<const CallStmt&>(statement));
    case StmtKind::If: return Visit(static_cast<const IfStmt&>(statement));
    case StmtKind::Select: return Visit(static_cast<const SelectStmt&>(statement));
    case StmtKind::For: return Visit(static_cast<const ForStmt&>(statement));
    case StmtKind::ForEach: return Visit(static_cast<const ForEachStmt&>(statement));
    case StmtKind::Loop: return Visit(static_cast<const LoopStmt&>(statement));
    case StmtKind::With: return Visit(static_cast<const WithStmt&>(statement));
    case StmtKind::Exit:
    case StmtKind::OnError:
    case StmtKind::Stop: return;
  }
}

void Collector::Visit(const DimStmt& statement) {
  for (const VariableDecl& variable : statement.variables) {
    const NameId name = m_Names.Add(variable.name);
    Declare(name);
    if (variable.isArray) m_Found.arrays.push_back({name, variable.bounds});
  }
}

void Collector::Visit(const ReDimStmt& statement) {
  for (const ReDimTarget& target : statement.targets) {
    // ReDim declares its name.
    if (target.array->kind == ExprKind::Name) {
      const NameId name = m_Names.Add(static_cast<const NameExpr*>(target.array)->name);
      Mention(name);
      m_Found.redimmed.push_back(name);
    } else {
      Visit(target.array);
    }
    VisitAll(target.bounds);
  }
}

void Collector::Visit(const ConstStmt& statement) {
  for (const ConstDecl& constant : statement.constants)
    m_Found.constants.emplace_back(m_Names.Add(constant.name), constant.value);
}

void Collector::Visit(const AssignStmt& statement) {
  Assign(statement.target);
  Visit(statement.value);
}

void Collector::Visit(const CallStmt& statement) {
  Visit(statement.callee);
  VisitAll(statement.arguments);
}

void Collector::Visit(const IfStmt& statement) {
  for (const IfBranch& branch : statement.branches) {
    Visit(branch.condition);
    Visit(branch.body);
  }
  Visit(statement.otherwise);
}

void Collector::Visit(const SelectStmt& statement) {
  Visit(statement.subject);
  for (const SelectCase& part : statement.cases) {
    VisitAll(part.values);
    Nested(kSelectRegisters, part.body);
  }
  Nested(kSelectRegisters, statement.otherwise);
}

void Collector::Visit(const ForStmt& statement) {
  Assign(statement.variable);
  Visit(statement.from);
  Visit(statement.to);
  Visit(statement.step);
  Nested(kForRegisters, statement.body);
}

void Collector::Visit(const ForEachStmt& statement) {
  Assign(statement.variable);
  Visit(statement.collection);
  Nested(kEachRegisters, statement.body);
}

void Collector::Visit(const LoopStmt& statement) {
  Visit(statement.condition);
  Visit(statement.body);
}

void Collector::Visit(const WithStmt& statement) {
  Visit(statement.object);
  Nested(kWithRegisters, statement.body);
}

}  // namespace

NamesOfBody CollectNames(Block body, Names& names) {
  Collector collector(names);
  collector.Visit(body);
  return collector.Take();
}

NamesOfBody CollectNames(const Expr& expression, Names& names) {
  Collector collector(names);
  collector.Visit(&expression);
  return collector.Take();
}

}  // namespace cardwright::vbscript
