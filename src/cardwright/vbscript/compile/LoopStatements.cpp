// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/compile/BodyCompiler.h"

// Loops. What a loop keeps between its turns (limit and step, or the enumeration) is in hidden registers,
// which nested statements allocate like a stack and clear at their end.
namespace cardwright::vbscript {

// The register of the loop's variable: its own, or `reference`, which is made to refer to the variable.
std::uint16_t BodyCompiler::EmitControlVariable(const Binding& binding, std::uint16_t reference) {
  if (binding.kind == BindingKind::Register) return binding.r;
  const bool isFunction = binding.symbol == SymbolKind::Procedure || binding.symbol == SymbolKind::Builtin;
  isFunction ? EmitIllegalAssignment(binding) : EmitReferenceTo(binding, reference);
  return reference;
}

void BodyCompiler::CompileLoopBody(ExitKind exit, Label& end, std::size_t outside, Block body) {
  m_Loops.push_back({exit, &end, outside});
  CompileBlock(body);
  m_Loops.pop_back();
}

// First value, limit and step are all evaluated before any of them is stored. Where one of them fails and
// errors are ignored, the loop stays unprepared: its body runs once, and Next is an error.
void BodyCompiler::CompileFor(const ForStmt& statement) {
  const Binding binding = Resolve(*statement.variable);
  const std::size_t mark = Mark(statement.position);
  const std::size_t outside = m_Hidden;
  const std::uint16_t bounds = TakeHidden(kForRegisters);
  m_Code.Emit(Op::Clear, bounds, 0, 0, kForRegisters);
  const std::uint16_t variable = EmitControlVariable(binding, static_cast<std::uint16_t>(bounds + 3));
  EmitForBounds(statement, bounds);
  Label end;
  m_Code.Emit(Op::ForPrepare, variable, bounds);
  m_Code.EmitTarget(end);
  m_Code.ResumeHere(mark);
  const std::uint32_t body = m_Code.Here();
  CompileLoopBody(ExitKind::For, end, outside, statement.body);
  const std::size_t nextMark = m_Code.Mark(statement.nextPosition);
  m_Code.Emit(Op::ForNext, variable, bounds);
  m_Code.EmitTargetBack(body);
  m_Code.ResumeHere(nextMark);
  m_Code.Bind(end);
  ReleaseHidden(bounds, kForRegisters);
}

void BodyCompiler::EmitForBounds(const ForStmt& statement, std::uint16_t bounds) {
  const std::uint32_t used = m_Code.NextTemporary();
  const Expr* const parts[] = {statement.from, statement.to, statement.step};
  std::uint16_t values[3];
  for (std::size_t k = 0; k < 3; ++k) {
    values[k] = m_Code.AllocateTemporary();
    parts[k] ? CompileInto(*parts[k], values[k]) : LoadConstant(Variant(std::int16_t{1}), values[k]);
  }
  for (std::uint16_t k = 0; k < 3; ++k)
    m_Code.Emit(Op::Move, static_cast<std::uint16_t>(bounds + k), values[k]);
  m_Code.FreeTemporaries(used);
}

// What cannot be enumerated runs the body once where errors are ignored.
void BodyCompiler::CompileForEach(const ForEachStmt& statement) {
  const Binding binding = Resolve(*statement.variable);
  const std::size_t mark = Mark(statement.position);
  const std::size_t outside = m_Hidden;
  const std::uint16_t state = TakeHidden(kEachRegisters);
  const std::uint32_t used = m_Code.NextTemporary();
  m_Code.Emit(Op::Clear, state, 0, 0, kEachRegisters);
  const std::uint16_t variable = EmitControlVariable(binding, static_cast<std::uint16_t>(state + 1));
  m_Code.Emit(Op::EachPrepare, state, CompileToRegister(*statement.collection));
  m_Code.FreeTemporaries(used);
  Label next, end;
  m_Code.Jump(next);
  m_Code.ResumeHere(mark);
  const std::uint32_t body = m_Code.Here();
  CompileLoopBody(ExitKind::For, end, outside, statement.body);
  m_Code.Bind(next);
  const std::size_t nextMark = m_Code.Mark(statement.position);
  m_Code.Emit(Op::EachNext, variable, state);
  m_Code.EmitTarget(end);
  m_Code.JumpBack(body);
  m_Code.ResumeHere(nextMark);
  m_Code.Bind(end);
  ReleaseHidden(state, kEachRegisters);
}

// A condition at the end that fails leaves the loop where errors are ignored. Exit Do does not leave a
// While.
void BodyCompiler::CompileLoop(const LoopStmt& statement) {
  const bool first = statement.loop == LoopKind::DoWhile || statement.loop == LoopKind::DoUntil ||
                     statement.loop == LoopKind::WhileWend;
  const bool until = statement.loop == LoopKind::DoUntil || statement.loop == LoopKind::LoopUntil;
  Label end;
  const std::uint32_t start = m_Code.Here();
  if (first) {
    const std::size_t mark = Mark(statement.position);
    CompileCondition(*statement.condition, until, end);
    m_Code.ResumeHere(mark);
  } else if (m_Context.isObserved) {
    m_Code.ResumeHere(Mark(statement.position));
  }
  if (statement.loop == LoopKind::WhileWend) {
    CompileBlock(statement.body);
  } else {
    CompileLoopBody(ExitKind::Do, end, m_Hidden, statement.body);
  }
  const std::size_t mark = m_Code.Mark(statement.endPosition);
  if (!first && statement.condition) CompileCondition(*statement.condition, until, end);
  m_Code.JumpBack(start);
  m_Code.Bind(end);
  m_Code.ResumeHere(mark);
}

}  // namespace cardwright::vbscript
