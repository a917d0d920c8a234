// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/compile/BodyCompiler.h"

namespace cardwright::vbscript {

namespace {
constexpr std::uint32_t kMaxVariables = 60000;
}

void BodyCompiler::AddParameter(NameId name, bool byValue) {
  m_Locals[name] = {.r = static_cast<std::uint16_t>(m_Registers), .isReference = !byValue};
  m_Procedure.locals.emplace_back(name, static_cast<std::uint16_t>(m_Registers++));
  m_Procedure.byValue.push_back(byValue);
  m_Procedure.hasByValue |= byValue;
  m_Procedure.parameters = static_cast<std::uint16_t>(m_Registers);
}

void BodyCompiler::AddResult(NameId name) {
  m_Procedure.result = AddVariable(name);
  m_Procedure.returnsValue = true;
  if (name != kNoName) MarkResult(name);
}

void BodyCompiler::MarkResult(NameId name) {
  m_Locals[name].isResult = true;
  m_Procedure.resultName = name;
}

std::uint16_t BodyCompiler::AddVariable(NameId name) {
  if (m_Registers >= kMaxVariables) m_Code.FailTooLarge();
  const auto r = static_cast<std::uint16_t>(m_Registers++);
  if (name != kNoName) {
    m_Locals[name] = {.r = r};
    m_Procedure.locals.emplace_back(name, r);
  }
  return r;
}

void BodyCompiler::AddConstant(NameId name, const Variant* value) { m_Locals[name] = {.constant = value}; }

void BodyCompiler::AddNames(const NamesOfBody& names) {
  for (const NameId name : names.variables)
    if (!Knows(name)) AddVariable(name);
  for (const auto& [name, value] : names.constants) AddConstant(name, value);
  const Variant* constant = nullptr;
  const auto isFree = [&](NameId name) {
    return !Knows(name) && !(m_Owner && m_Owner->Find(name)) && KindOf(name, constant) == SymbolKind::Unbound;
  };
  for (const NameId name : names.redimmed)
    if (isFree(name)) AddVariable(name);
  // A name that nobody declares is a variable of the procedure, unless it is bound to something else by the
  // time that the code uses it.
  for (const NameId name : names.mentioned) {
    if (m_Context.isExplicit || !isFree(name)) continue;
    const std::uint16_t r = AddVariable(kNoName);
    m_Procedure.symbols[SymbolIndex(name)].local = r;
    m_Procedure.locals.emplace_back(name, r);
  }
  LayOutRegisters(names);
}

void BodyCompiler::LayOutRegisters(const NamesOfBody& names) {
  m_Assigned = names.assigned;
  m_FirstHidden = m_Registers;
  m_Code.SetFirstTemporary(m_Registers + names.hidden);
  DimArrays(names);
}

// Like all variables, arrays exist from the start.
void BodyCompiler::DimArrays(const NamesOfBody& names) {
  for (const NamesOfBody::Array& array : names.arrays) {
    const Binding binding = Resolve(array.name);
    if (binding.kind != BindingKind::Register) continue;
    const std::uint32_t shape = m_Code.Shape(array.bounds);
    if (!binding.isReference) {
      m_Code.EmitWide(Op::DimArray, binding.r, shape);
      continue;
    }
    const std::uint16_t made = m_Code.AllocateTemporary();
    m_Code.EmitWide(Op::DimArray, made, shape);
    m_Code.Emit(Op::LetThrough, binding.r, made);
    m_Code.FreeTemporaries(made);
  }
}

SymbolKind BodyCompiler::KindOf(NameId name, const Variant*& constant) {
  const auto defined = m_Context.block.find(name);
  if (defined != m_Context.block.end()) {
    constant = defined->second.constant;
    return defined->second.kind;
  }
  const Symbol* symbol = m_Context.linkage.Lookup(m_Context.module, name);
  if (!symbol) return SymbolKind::Unbound;
  if (symbol->kind == SymbolKind::Constant) constant = &symbol->value;
  return symbol->kind;
}

std::uint32_t BodyCompiler::SymbolIndex(NameId name) {
  const auto next = static_cast<std::uint32_t>(m_Procedure.symbols.size());
  const auto [found, isNew] = m_Symbols.try_emplace(name, next);
  if (isNew) {
    SymbolUse use;
    use.name = name;
    use.isStrict = m_Context.isExplicit;
    m_Procedure.symbols.push_back(use);
  }
  return found->second;
}

BodyCompiler::Binding BodyCompiler::Resolve(NameId name) {
  const auto local = m_Locals.find(name);
  if (local != m_Locals.end()) {
    const Local& found = local->second;
    if (found.constant) return {.kind = BindingKind::Constant, .name = name, .constant = found.constant};
    return {.kind = BindingKind::Register,
            .name = name,
            .r = found.r,
            .isReference = found.isReference,
            .isResult = found.isResult};
  }
  if (m_Owner) {
    if (const ClassMember* member = m_Owner->Find(name)) {
      if (member->field < 0) return {.kind = BindingKind::Member, .name = name};
      return {.kind = BindingKind::Field, .name = name, .index = static_cast<std::uint32_t>(member->field)};
    }
  }
  Binding binding{.kind = BindingKind::Symbol, .name = name};
  const Variant* constant = nullptr;
  binding.symbol = KindOf(name, constant);
  if (binding.symbol == SymbolKind::Constant && constant) {
    binding.kind = BindingKind::Constant;
    binding.constant = constant;
  } else {
    binding.index = SymbolIndex(name);
  }
  return binding;
}

// In a method, the name of that method is a member of the class, called again.
BodyCompiler::Binding BodyCompiler::ResolveCallee(const Expr& nameExpr) {
  const Binding binding = Resolve(nameExpr);
  if (binding.isResult && m_Owner) return {.kind = BindingKind::Member, .name = binding.name};
  return binding;
}

// What a report about a failed member calls its object.
NameId BodyCompiler::ObjectName(const Expr& expression) {
  Names& names = m_Context.linkage.names;
  if (expression.kind == ExprKind::Name) return names.Add(static_cast<const NameExpr&>(expression).name);
  if (expression.kind == ExprKind::Member) return names.Add(static_cast<const MemberExpr&>(expression).name);
  if (expression.kind == ExprKind::Call) return ObjectName(*static_cast<const CallExpr&>(expression).callee);
  return names.Add(u"");
}

// Whether evaluating the expression may run code that changes variables.
bool BodyCompiler::MayRunScript(const Expr* expression) {
  while (true) {
    switch (expression->kind) {
      case ExprKind::Literal:
      case ExprKind::Me:
      case ExprKind::Missing: return false;
      case ExprKind::New:
      case ExprKind::Member: return true;
      case ExprKind::Name: {
        const Binding binding = Resolve(*expression);
        if (binding.kind != BindingKind::Symbol) return binding.kind == BindingKind::Member;
        // An unbound name becomes a variable where the body assigns it.
        if (binding.symbol == SymbolKind::Unbound) return !m_Assigned.contains(binding.name);
        return binding.symbol != SymbolKind::Variable && binding.symbol != SymbolKind::Builtin;
      }
      case ExprKind::Paren: expression = static_cast<const ParenExpr*>(expression)->inner; break;
      case ExprKind::Unary: expression = static_cast<const UnaryExpr*>(expression)->operand; break;
      case ExprKind::Binary:
        if (MayRunScript(static_cast<const BinaryExpr*>(expression)->right)) return true;
        expression = static_cast<const BinaryExpr*>(expression)->left;
        break;
      case ExprKind::Call: return MayRunScript(*static_cast<const CallExpr*>(expression));
    }
  }
}

bool BodyCompiler::MayRunScript(const CallExpr& call) {
  if (call.callee->kind != ExprKind::Name) return true;
  const Binding binding = Resolve(*call.callee);
  if (!binding.IsOwnVariable() && !binding.IsModuleVariable() && !binding.IsLibraryFunction()) return true;
  for (const Expr* argument : call.arguments)
    if (MayRunScript(argument)) return true;
  return false;
}

}  // namespace cardwright::vbscript
