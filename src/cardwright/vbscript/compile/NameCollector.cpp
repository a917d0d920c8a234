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
  void Visit(const DimStmt& statement) {
    for (const VariableDecl& variable : statement.variables) {
      const NameId name = m_Names.Add(variable.name);
      Declare(name);
      if (variable.isArray) m_Found.arrays.push_back({name, variable.bounds});
    }
  }
  void Visit(const ReDimStmt& statement) {
    for (const ReDimTarget& target : statement.targets) {
      // ReDim declares its name.
      if (target.array->kind == ExprKind::Name) {
        const NameId name = m_Names.Add(static_cast<const NameExpr*>(target.array)->name);
        Mention(name);
        m_Redimmed.push_back(name);
      } else {
        Visit(target.array);
      }
      VisitAll(target.bounds);
    }
  }

  Names& m_Names;
  NamesOfBody m_Found;
  std::unordered_set<NameId> m_Mentioned, m_Declared;
  std::vector<NameId> m_Redimmed;
  std::uint16_t m_Hidden = 0;

 public:
  const std::vector<NameId>& Redimmed() const noexcept { return m_Redimmed; }
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
    case StmtKind::Dim: Visit(static_cast<const DimStmt&>(statement)); break;
    case StmtKind::ReDim: Visit(static_cast<const ReDimStmt&>(statement)); break;
    case StmtKind::Erase: VisitAll(static_cast<const EraseStmt&>(statement).arrays); break;
    case StmtKind::Const:
      for (const ConstDecl& constant : static_cast<const ConstStmt&>(statement).constants)
        m_Found.constants.emplace_back(m_Names.Add(constant.name), constant.value);
      break;
    case StmtKind::Assign: {
      const auto& assign = static_cast<const AssignStmt&>(statement);
      Assign(assign.target);
      Visit(assign.value);
      break;
    }
    case StmtKind::Call: {
      const auto& call = static_cast<const CallStmt&>(statement);
      Visit(call.callee);
      VisitAll(call.arguments);
      break;
    }
    case StmtKind::If: {
      const auto& choice = static_cast<const IfStmt&>(statement);
      for (const IfBranch& branch : choice.branches) {
        Visit(branch.condition);
        Visit(branch.body);
      }
      Visit(choice.otherwise);
      break;
    }
    case StmtKind::Select: {
      const auto& select = static_cast<const SelectStmt&>(statement);
      Visit(select.subject);
      for (const SelectCase& part : select.cases) {
        VisitAll(part.values);
        Nested(kSelectRegisters, part.body);
      }
      Nested(kSelectRegisters, select.otherwise);
      break;
    }
    case StmtKind::For: {
      const auto& loop = static_cast<const ForStmt&>(statement);
      Assign(loop.variable);
      Visit(loop.from);
      Visit(loop.to);
      Visit(loop.step);
      Nested(kForRegisters, loop.body);
      break;
    }
    case StmtKind::ForEach: {
      const auto& loop = static_cast<const ForEachStmt&>(statement);
      Assign(loop.variable);
      Visit(loop.collection);
      Nested(kEachRegisters, loop.body);
      break;
    }
    case StmtKind::Loop: {
      const auto& loop = static_cast<const LoopStmt&>(statement);
      Visit(loop.condition);
      Visit(loop.body);
      break;
    }
    case StmtKind::With: {
      const auto& with = static_cast<const WithStmt&>(statement);
      Visit(with.object);
      Nested(kWithRegisters, with.body);
      break;
    }
    case StmtKind::Exit:
    case StmtKind::OnError:
    case StmtKind::Stop: break;
  }
}

}  // namespace

NamesOfBody CollectNames(Block body, Names& names) {
  Collector collector(names);
  collector.Visit(body);
  NamesOfBody found = collector.Take();
  found.redimmed = collector.Redimmed();
  return found;
}

NamesOfBody CollectNames(const Expr& expression, Names& names) {
  Collector collector(names);
  collector.Visit(&expression);
  return collector.Take();
}

}  // namespace cardwright::vbscript
