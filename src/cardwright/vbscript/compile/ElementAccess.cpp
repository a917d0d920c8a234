// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/compile/BodyCompiler.h"

// `a(i)` and `a(i, j)`, read and assigned. Few indices of a variable have instructions of their own; anything
// else is assigned by a call.
namespace cardwright::vbscript {

std::uint8_t BodyCompiler::Indices::Flags() const noexcept {
  return static_cast<std::uint8_t>((first.isConstant ? kConstantC : 0) | (areTwo ? kTwoIndices : 0) |
                                   (second.isConstant ? kConstantSecond : 0));
}

// One or two, none of them left out: as many as an instruction has room for.
bool BodyCompiler::AreFewIndices(Expressions indices) {
  if (indices.empty() || indices.size() > 2) return false;
  for (const Expr* index : indices)
    if (index->kind == ExprKind::Missing) return false;
  return true;
}

// In an assignment the indices keep their values while `value` is evaluated after them; null otherwise.
BodyCompiler::Indices BodyCompiler::CompileIndices(Expressions indices, const Expr* value) {
  Indices compiled{.first = CompileOperand(*indices[0])};
  if (indices.size() == 2) {
    compiled.areTwo = true;
    compiled.first = KeepAcross(compiled.first, *indices[1]);
    compiled.second = CompileOperand(*indices[1]);
    if (value) compiled.second = KeepAcross(compiled.second, *value);
  }
  if (value) compiled.first = KeepAcross(compiled.first, *value);
  return compiled;
}

void BodyCompiler::EmitElement(const ElementOps& ops, const Binding& array, std::uint16_t value,
                               const Indices& indices) {
  if (array.kind == BindingKind::Register) {
    m_Code.Emit(indices.areTwo ? ops.ofRegister2 : ops.ofRegister, value, array.r, indices.first.index,
                indices.Flags());
    if (indices.areTwo) m_Code.EmitWord(0, indices.second.index);
  } else {
    m_Code.Emit(array.kind == BindingKind::Field ? ops.ofField : ops.ofSymbol, value, 0, indices.first.index,
                indices.Flags());
    m_Code.EmitWord(array.index, indices.second.index);
  }
}

// Reads an element of what is surely a variable; false where it takes a call.
bool BodyCompiler::CompileElement(const Binding& binding, Expressions indices, std::uint16_t target) {
  static constexpr ElementOps kGet{Op::GetElement, Op::GetElement2, Op::GetSymbolElement,
                                   Op::GetFieldElement};
  if (!AreFewIndices(indices) || !(binding.IsOwnVariable() || binding.IsModuleVariable())) return false;
  const std::uint32_t used = m_Code.NextTemporary();
  const Indices compiled = CompileIndices(indices, nullptr);
  m_Code.FreeTemporaries(used);
  // Should the variable hold no array, it is called: with the indices in two registers after those in use.
  const std::uint16_t result = m_Code.AllocateTemporary();
  m_Code.Reserve(1);
  EmitElement(kGet, binding, result, compiled);
  if (result != target) m_Code.Emit(Op::Move, target, result);
  return true;
}

void BodyCompiler::AssignElement(const CallExpr& target, const AssignStmt& statement) {
  const Expr& callee = *target.callee;
  if (callee.kind == ExprKind::Member) {
    AssignMember(static_cast<const MemberExpr&>(callee), target.arguments, statement);
  } else if (callee.kind == ExprKind::Name) {
    AssignElementOf(Resolve(callee), target, statement);
  } else {
    AssignIndexed(EmitElementPath(callee), target, statement);
  }
}

void BodyCompiler::AssignElementOf(const Binding& binding, const CallExpr& target,
                                   const AssignStmt& statement) {
  static constexpr ElementOps kSet{Op::SetElement, Op::SetElement2, Op::SetSymbolElement,
                                   Op::SetFieldElement};
  if (binding.IsStorage() && !statement.isSet && AreFewIndices(target.arguments)) {
    const Indices indices = CompileIndices(target.arguments, statement.value);
    EmitElement(kSet, binding, CompileToRegister(*statement.value), indices);
    return;
  }
  const std::uint16_t flags = statement.isSet ? kAsSet : 0;
  const std::uint8_t count = Count(target.arguments.size() + 1);
  switch (binding.kind) {
    case BindingKind::Register: AssignIndexed(binding.r, target, statement); break;
    case BindingKind::Constant: AssignIndexed(EmitElementPath(*target.callee), target, statement); break;
    case BindingKind::Field: {
      const std::uint16_t field = m_Code.AllocateTemporary();
      EmitReferenceTo(binding, field);
      AssignIndexed(field, target, statement);
      break;
    }
    case BindingKind::Symbol: {
      const std::uint16_t base = EmitArgumentsAndValue(target.arguments, Passing::ByValue, statement);
      m_Code.Emit(Op::AssignIndexedSymbol, base, 0, flags, count);
      m_Code.EmitWord(binding.index);
      break;
    }
    case BindingKind::Member: {
      const std::uint16_t me = m_Code.AllocateTemporary();
      m_Code.Emit(Op::LoadMe, me);
      const std::uint16_t base = EmitArgumentsAndValue(target.arguments, Passing::ByValue, statement);
      m_Code.Emit(Op::AssignMember, base, me, flags, count);
      m_Code.EmitWord(m_Code.Member(binding.name, kNoName));
      break;
    }
  }
}

// holder(arguments) = value, for any number of indices and for what may turn out to be an object.
void BodyCompiler::AssignIndexed(std::uint16_t holder, const CallExpr& target, const AssignStmt& statement) {
  const std::uint16_t base = EmitArgumentsAndValue(target.arguments, Passing::ByValue, statement);
  m_Code.Emit(Op::AssignIndexed, base, holder, statement.isSet ? kAsSet : 0,
              Count(target.arguments.size() + 1));
}

// The register of a reference to what an assignment indexes. The elements of arrays in arrays are reached one
// from the other, so all references of the path stay in their registers.
std::uint16_t BodyCompiler::EmitElementPath(const Expr& expression) {
  const auto* call = expression.kind == ExprKind::Call ? static_cast<const CallExpr*>(&expression) : nullptr;
  if (!call || call->callee->kind != ExprKind::Call || call->arguments.empty()) {
    const std::uint16_t reference = m_Code.AllocateTemporary();
    EmitReference(expression, reference);
    return reference;
  }
  const std::uint16_t outer = EmitElementPath(*call->callee);
  const std::uint16_t base = EmitArguments(call->arguments, Passing::ByValue);
  m_Code.Emit(Op::RefElement, base, outer, 0, Count(call->arguments.size()));
  m_Code.FreeTemporaries(base + 1u);
  return base;
}

}  // namespace cardwright::vbscript
