// SPDX-License-Identifier: MIT
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/compile/BodyCompiler.h"

namespace cardwright::vbscript {

namespace {

// An operator never gives an object or an array, so its result may go straight into a variable.
bool NeverGivesObject(const Expr& value) {
  return value.kind == ExprKind::Binary || value.kind == ExprKind::Unary ||
         (value.kind == ExprKind::Literal && !static_cast<const LiteralExpr&>(value).value->IsObject());
}

// The links of `s & a & b`, the last one first. `first` becomes what the chain starts with.
std::vector<const BinaryExpr*> ConcatenationChain(const Expr*& first) {
  std::vector<const BinaryExpr*> chain;
  while (first->kind == ExprKind::Binary &&
         static_cast<const BinaryExpr*>(first)->op == BinaryOperator::Concatenate) {
    chain.push_back(static_cast<const BinaryExpr*>(first));
    first = chain.back()->left;
  }
  return chain;
}

}  // namespace

void BodyCompiler::CompileAssign(const AssignStmt& statement) {
  const std::uint32_t used = m_Code.NextTemporary();
  switch (statement.target->kind) {
    case ExprKind::Name: AssignName(Resolve(*statement.target), statement); break;
    case ExprKind::Member:
      AssignMember(static_cast<const MemberExpr&>(*statement.target), {}, statement);
      break;
    default: AssignElement(static_cast<const CallExpr&>(*statement.target), statement); break;
  }
  m_Code.FreeTemporaries(used);
}

void BodyCompiler::AssignName(const Binding& binding, const AssignStmt& statement) {
  if (CompileAppend(binding, statement)) return;
  if (binding.kind == BindingKind::Register && !binding.isReference && !statement.isSet &&
      NeverGivesObject(*statement.value)) {
    CompileInto(*statement.value, binding.r);
    return;
  }
  if (binding.kind == BindingKind::Member) {
    const std::uint16_t me = m_Code.AllocateTemporary();
    m_Code.Emit(Op::LoadMe, me);
    const std::uint16_t value = m_Code.AllocateTemporary();
    CompileInto(*statement.value, value);
    m_Code.Emit(Op::AssignMember, value, me, statement.isSet ? kAsSet : 0, 1);
    m_Code.EmitWord(m_Code.Member(binding.name, kNoName));
    return;
  }
  Store(binding, CompileToRegister(*statement.value), statement.isSet);
}

void BodyCompiler::Store(const Binding& binding, std::uint16_t value, bool isSet) {
  switch (binding.kind) {
    case BindingKind::Register:
      if (binding.isReference) {
        m_Code.Emit(isSet ? Op::SetThrough : Op::LetThrough, binding.r, value);
      } else {
        m_Code.Emit(isSet ? Op::Set : Op::Let, binding.r, value);
      }
      break;
    case BindingKind::Field:
      m_Code.EmitWide(isSet ? Op::SetField : Op::LetField, value, binding.index);
      break;
    case BindingKind::Symbol:
      m_Code.EmitWide(isSet ? Op::SetSymbol : Op::LetSymbol, value, binding.index);
      break;
    case BindingKind::Constant:
    case BindingKind::Member: EmitIllegalAssignment(binding); break;
  }
}

void BodyCompiler::EmitIllegalAssignment(const Binding& binding) {
  m_Code.EmitWide(Op::RaiseError, static_cast<std::uint16_t>(ErrorNumber::IllegalAssignment),
                  SymbolIndex(binding.name));
}

void BodyCompiler::AssignMember(const MemberExpr& member, Expressions arguments,
                                const AssignStmt& statement) {
  const std::uint16_t object = ObjectOf(member);
  const std::uint16_t base = EmitArgumentsAndValue(arguments, Passing::ByReference, statement);
  m_Code.Emit(Op::AssignMember, base, object, statement.isSet ? kAsSet : 0, Count(arguments.size() + 1));
  EmitMemberWord(member);
}

// The arguments, and after them the value to assign.
std::uint16_t BodyCompiler::EmitArgumentsAndValue(Expressions arguments, Passing passing,
                                                  const AssignStmt& statement) {
  const std::uint16_t base = EmitArguments(arguments, passing, 1);
  m_Code.FreeTemporaries(static_cast<std::uint32_t>(base + arguments.size()));
  CompileInto(*statement.value, m_Code.AllocateTemporary());
  return base;
}

// `s = s & a & b` appends to the text of `s` in place; copying the text each time would take quadratic time
// in a loop. Not where evaluating `a` or `b` could change `s`.
bool BodyCompiler::CompileAppend(const Binding& binding, const AssignStmt& statement) {
  if (statement.isSet || !binding.IsStorage()) return false;
  const Expr* first = statement.value;
  const std::vector<const BinaryExpr*> chain = ConcatenationChain(first);
  if (chain.empty() || first->kind != ExprKind::Name) return false;
  if (m_Context.linkage.names.Add(static_cast<const NameExpr*>(first)->name) != binding.name) return false;
  for (const BinaryExpr* link : chain)
    if (MayRunScript(link->right)) return false;

  const std::uint32_t used = m_Code.NextTemporary();
  Operand tail = CompileOperand(*chain.back()->right);
  for (std::size_t k = chain.size() - 1; k-- > 0;) {
    const Operand next = CompileOperand(*chain[k]->right);
    m_Code.FreeTemporaries(used);
    const std::uint16_t sum = m_Code.AllocateTemporary();
    EmitBinary(BinaryOperator::Concatenate, sum, tail, next);
    tail = {sum, false};
  }
  EmitAppend(binding, tail);
  return true;
}

void BodyCompiler::EmitAppend(const Binding& binding, Operand tail) {
  if (binding.kind == BindingKind::Register && !binding.isReference) {
    EmitBinary(BinaryOperator::Concatenate, binding.r, {binding.r, false}, tail);
    return;
  }
  if (tail.isConstant || !m_Code.IsTemporary(tail.index)) {
    const std::uint16_t copy = m_Code.AllocateTemporary();
    tail.isConstant ? static_cast<void>(m_Code.EmitWide(Op::LoadConst, copy, tail.index))
                    : static_cast<void>(m_Code.Emit(Op::Copy, copy, tail.index));
    tail = {copy, false};
  }
  if (binding.kind == BindingKind::Register) {
    m_Code.Emit(Op::AppendThrough, binding.r, tail.index);
  } else {
    m_Code.EmitWide(binding.kind == BindingKind::Field ? Op::AppendField : Op::AppendSymbol, tail.index,
                    binding.index);
  }
}

}  // namespace cardwright::vbscript
