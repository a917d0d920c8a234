// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/compile/BodyCompiler.h"
#include "cardwright/vbscript/operators/Operators.h"

namespace cardwright::vbscript {

namespace {

constexpr std::uint32_t kMaxOperandConstant = 0xFFFF;

struct Comparison {
  Op jumpIf, jumpUnless;
};

const Comparison* ComparisonOf(BinaryOperator op) {
  static constexpr Comparison kEqual{Op::JumpIfEqual, Op::JumpUnlessEqual};
  static constexpr Comparison kNotEqual{Op::JumpIfNotEqual, Op::JumpUnlessNotEqual};
  static constexpr Comparison kLess{Op::JumpIfLess, Op::JumpUnlessLess};
  static constexpr Comparison kLessOrEqual{Op::JumpIfLessOrEqual, Op::JumpUnlessLessOrEqual};
  static constexpr Comparison kGreater{Op::JumpIfGreater, Op::JumpUnlessGreater};
  static constexpr Comparison kGreaterOrEqual{Op::JumpIfGreaterOrEqual, Op::JumpUnlessGreaterOrEqual};
  switch (op) {
    case BinaryOperator::Equal: return &kEqual;
    case BinaryOperator::NotEqual: return &kNotEqual;
    case BinaryOperator::Less: return &kLess;
    case BinaryOperator::LessOrEqual: return &kLessOrEqual;
    case BinaryOperator::Greater: return &kGreater;
    case BinaryOperator::GreaterOrEqual: return &kGreaterOrEqual;
    default: return nullptr;
  }
}

Op OperationOf(BinaryOperator op) {
  switch (op) {
    case BinaryOperator::Add: return Op::Add;
    case BinaryOperator::Subtract: return Op::Subtract;
    case BinaryOperator::Multiply: return Op::Multiply;
    case BinaryOperator::Divide: return Op::Divide;
    case BinaryOperator::IntegerDivide: return Op::IntegerDivide;
    case BinaryOperator::Modulo: return Op::Modulo;
    case BinaryOperator::Concatenate: return Op::Concatenate;
    case BinaryOperator::And: return Op::And;
    case BinaryOperator::Or: return Op::Or;
    default: return Op::Binary;
  }
}

}  // namespace

void BodyCompiler::LoadConstant(const Variant& value, std::uint16_t target) {
  m_Code.EmitWide(Op::LoadConst, target, m_Code.Constant(value));
}

// A literal, perhaps with a sign, or a named constant.
const Variant* BodyCompiler::FoldedConstant(const Expr& expression, Variant& storage) {
  if (expression.kind == ExprKind::Literal) return static_cast<const LiteralExpr&>(expression).value;
  if (expression.kind == ExprKind::Name) return Resolve(expression).constant;
  if (expression.kind == ExprKind::Unary) {
    const auto& unary = static_cast<const UnaryExpr&>(expression);
    if (unary.op != UnaryOperator::Negate || unary.operand->kind != ExprKind::Literal) return nullptr;
    const Variant& value = *static_cast<const LiteralExpr&>(*unary.operand).value;
    if (value.Type() != VarType::Integer && value.Type() != VarType::Long && value.Type() != VarType::Double)
      return nullptr;
    storage = Negate(value);
    return &storage;
  }
  return nullptr;
}

// A constant operand needs no instruction, and neither does a variable: it is used in its register.
BodyCompiler::Operand BodyCompiler::CompileOperand(const Expr& expression) {
  Variant storage;
  if (const Variant* constant = FoldedConstant(expression, storage)) {
    const std::uint32_t index = m_Code.Constant(*constant);
    if (index <= kMaxOperandConstant) return {static_cast<std::uint16_t>(index), true};
  }
  return {CompileToRegister(expression), false};
}

std::uint16_t BodyCompiler::CompileToRegister(const Expr& expression) {
  if (expression.kind == ExprKind::Name) {
    const Binding binding = Resolve(expression);
    if (binding.kind == BindingKind::Register) return binding.r;
  }
  const std::uint16_t target = m_Code.AllocateTemporary();
  CompileInto(expression, target);
  return target;
}

// Emits code that puts the expression's value into the register. Temporaries that it takes are free
// afterwards.
void BodyCompiler::CompileInto(const Expr& expression, std::uint16_t target) {
  const std::uint32_t used = m_Code.NextTemporary();
  switch (expression.kind) {
    case ExprKind::Literal: LoadConstant(*static_cast<const LiteralExpr&>(expression).value, target); break;
    case ExprKind::Missing: LoadConstant(Variant::Missing(), target); break;
    case ExprKind::Name: LoadBinding(Resolve(expression), target); break;
    case ExprKind::Paren: CompileInto(*static_cast<const ParenExpr&>(expression).inner, target); break;
    case ExprKind::Me: m_Code.Emit(Op::LoadMe, target); break;
    case ExprKind::New: {
      const NameId name = m_Context.linkage.names.Add(static_cast<const NewExpr&>(expression).className);
      m_Code.EmitWide(Op::New, target, SymbolIndex(name));
      break;
    }
    case ExprKind::Unary: CompileUnary(static_cast<const UnaryExpr&>(expression), target); break;
    case ExprKind::Binary: CompileBinaryChain(static_cast<const BinaryExpr&>(expression), target); break;
    case ExprKind::Member: {
      const std::uint16_t result = EmitMemberCall(static_cast<const MemberExpr&>(expression), {}, 0);
      if (result != target) m_Code.Emit(Op::Move, target, result);
      break;
    }
    case ExprKind::Call: CompileCall(static_cast<const CallExpr&>(expression), target); break;
  }
  m_Code.FreeTemporaries(used);
}

void BodyCompiler::LoadBinding(const Binding& binding, std::uint16_t target) {
  switch (binding.kind) {
    case BindingKind::Register: m_Code.Emit(Op::Copy, target, binding.r); break;
    case BindingKind::Constant: LoadConstant(*binding.constant, target); break;
    case BindingKind::Field: m_Code.EmitWide(Op::LoadField, target, binding.index); break;
    case BindingKind::Symbol: m_Code.EmitWide(Op::LoadSymbol, target, binding.index); break;
    case BindingKind::Member: m_Code.Emit(Op::Move, target, EmitCallOfMe(binding.name, {}, 0)); break;
  }
}

void BodyCompiler::CompileUnary(const UnaryExpr& expression, std::uint16_t target) {
  Variant storage;
  if (const Variant* constant = FoldedConstant(expression, storage)) {
    LoadConstant(*constant, target);
    return;
  }
  const std::uint16_t operand = CompileToRegister(*expression.operand);
  constexpr Op kOperations[] = {Op::Negate, Op::Plus, Op::Not};
  m_Code.Emit(kOperations[static_cast<std::size_t>(expression.op)], target, operand);
}

// An operand is read in its turn. One that is a variable is read by the operator itself, unless evaluating
// what comes `later` may run code that changes it: then its value is copied to a temporary.
BodyCompiler::Operand BodyCompiler::KeepAcross(Operand operand, const Expr& later) {
  if (operand.isConstant || m_Code.IsTemporary(operand.index) || !MayRunScript(&later)) return operand;
  const std::uint16_t kept = m_Code.AllocateTemporary();
  m_Code.Emit(Op::Copy, kept, operand.index);
  return {kept, false};
}

void BodyCompiler::EmitBinary(BinaryOperator op, std::uint16_t target, Operand left, Operand right) {
  const auto flags =
      static_cast<std::uint8_t>((left.isConstant ? kConstantB : 0) | (right.isConstant ? kConstantC : 0));
  const Op operation = OperationOf(op);
  m_Code.Emit(operation, target, left.index, right.index, flags);
  if (operation == Op::Binary) m_Code.EmitWord(static_cast<std::uint32_t>(op));
}

// `a + b + c …` nests to the left and may be too long for recursion, so its links are collected first. Each
// result goes to the first temporary, the last one straight to the target.
void BodyCompiler::CompileBinaryChain(const BinaryExpr& expression, std::uint16_t target) {
  std::vector<const BinaryExpr*> chain;
  const Expr* first = &expression;
  while (first->kind == ExprKind::Binary) {
    chain.push_back(static_cast<const BinaryExpr*>(first));
    first = chain.back()->left;
  }
  const std::uint32_t used = m_Code.NextTemporary();
  Operand left = CompileOperand(*first);
  for (std::size_t k = chain.size(); k-- > 0;) {
    const BinaryExpr& link = *chain[k];
    left = KeepAcross(left, *link.right);
    const Operand right = CompileOperand(*link.right);
    m_Code.FreeTemporaries(used);
    const std::uint16_t result = k == 0 ? target : m_Code.AllocateTemporary();
    EmitBinary(link.op, result, left, right);
    left = {result, false};
  }
}

void BodyCompiler::CompileCondition(const Expr& condition, bool when, Label& label) {
  const std::uint32_t used = m_Code.NextTemporary();
  const auto* binary =
      condition.kind == ExprKind::Binary ? static_cast<const BinaryExpr*>(&condition) : nullptr;
  if (const Comparison* comparison = binary ? ComparisonOf(binary->op) : nullptr) {
    const Operand left = KeepAcross(CompileOperand(*binary->left), *binary->right);
    const Operand right = CompileOperand(*binary->right);
    const auto flags =
        static_cast<std::uint8_t>((left.isConstant ? kConstantB : 0) | (right.isConstant ? kConstantC : 0));
    m_Code.Emit(when ? comparison->jumpIf : comparison->jumpUnless, 0, left.index, right.index, flags);
    m_Code.EmitTarget(label);
  } else {
    m_Code.JumpIf(when ? Op::JumpIfTrue : Op::JumpIfFalse, CompileToRegister(condition), label);
  }
  m_Code.FreeTemporaries(used);
}

}  // namespace cardwright::vbscript
