// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/compile/BodyCompiler.h"

namespace cardwright::vbscript {

std::size_t BodyCompiler::Mark(Position position) {
  const std::size_t mark = m_Code.Mark(position);
  if (m_Context.isObserved) m_Code.Emit(Op::Observe);
  return mark;
}

// Hidden registers lie between the variables and the temporaries. They keep what a loop, With or Select needs
// as long as it runs; nested statements allocate them like a stack.
std::uint16_t BodyCompiler::TakeHidden(std::uint16_t count) {
  const auto first = static_cast<std::uint16_t>(m_FirstHidden + m_Hidden);
  m_Hidden += count;
  return first;
}

void BodyCompiler::ReleaseHidden(std::uint16_t first, std::uint16_t count) {
  m_Code.Emit(Op::Clear, first, 0, 0, static_cast<std::uint8_t>(count));
  m_Hidden -= count;
}

void BodyCompiler::CompileBody(Block body) {
  CompileBlock(body);
  EmitReturn();
  m_Procedure.Complete();
}

void BodyCompiler::EmitReturn() {
  if (m_Context.isObserved) m_Code.Emit(Op::ObserveReturn);
  m_Code.Emit(Op::Return);
}

void BodyCompiler::CompileResult(const Expr& expression, std::uint16_t result) {
  m_Code.Mark({});
  const std::uint16_t value = m_Code.AllocateTemporary();
  CompileInto(expression, value);
  m_Code.Emit(Op::Move, result, value);
  m_Code.Emit(Op::Return);
  m_Procedure.Complete();
}

void BodyCompiler::CompileBlock(Block body) {
  for (const Stmt* statement : body) CompileStatement(*statement);
}

void BodyCompiler::CompileStatement(const Stmt& statement) {
  switch (statement.kind) {
    case StmtKind::Dim:
    case StmtKind::Const: return;  // they apply from the start
    case StmtKind::If: return CompileIf(static_cast<const IfStmt&>(statement));
    case StmtKind::Select: return CompileSelect(static_cast<const SelectStmt&>(statement));
    case StmtKind::For: return CompileFor(static_cast<const ForStmt&>(statement));
    case StmtKind::ForEach: return CompileForEach(static_cast<const ForEachStmt&>(statement));
    case StmtKind::Loop: return CompileLoop(static_cast<const LoopStmt&>(statement));
    case StmtKind::With: return CompileWith(static_cast<const WithStmt&>(statement));
    default: CompileSimpleStatement(statement);
  }
}

void BodyCompiler::CompileSimpleStatement(const Stmt& statement) {
  const std::size_t mark = Mark(statement.position);
  switch (statement.kind) {
    case StmtKind::Assign: CompileAssign(static_cast<const AssignStmt&>(statement)); break;
    case StmtKind::Call: CompileCallStatement(static_cast<const CallStmt&>(statement)); break;
    case StmtKind::ReDim: CompileReDim(static_cast<const ReDimStmt&>(statement)); break;
    case StmtKind::Erase: CompileErase(static_cast<const EraseStmt&>(statement)); break;
    case StmtKind::Exit: CompileExit(static_cast<const ExitStmt&>(statement)); break;
    case StmtKind::OnError:
      m_Code.Emit(static_cast<const OnErrorStmt&>(statement).resumeNext ? Op::OnErrorResumeNext
                                                                        : Op::OnErrorGoTo0);
      break;
    default: break;  // Stop: no debugger is attached
  }
  m_Code.ResumeHere(mark);
}

// Where errors are ignored, a condition that fails counts as true: its branch is entered.
void BodyCompiler::CompileIf(const IfStmt& statement) {
  Label end;
  for (std::size_t k = 0; k < statement.branches.size(); ++k) {
    const IfBranch& branch = statement.branches[k];
    Label next;
    const std::size_t mark = Mark(branch.position);
    CompileCondition(*branch.condition, false, next);
    m_Code.ResumeHere(mark);
    CompileBlock(branch.body);
    if (k + 1 < statement.branches.size() || statement.hasElse) m_Code.Jump(end);
    m_Code.Bind(next);
  }
  CompileBlock(statement.otherwise);
  m_Code.Bind(end);
}

// Where errors are ignored, a subject that fails skips the whole statement; a value of a Case that fails
// counts as a match.
void BodyCompiler::CompileSelect(const SelectStmt& statement) {
  const std::size_t subjectMark = Mark(statement.position);
  const std::uint16_t subject = TakeHidden(kSelectRegisters);
  const std::uint32_t used = m_Code.NextTemporary();
  const std::uint16_t value = m_Code.AllocateTemporary();
  CompileInto(*statement.subject, value);
  m_Code.Emit(Op::Let, subject, value);
  m_Code.FreeTemporaries(used);
  Label end;
  for (const SelectCase& part : statement.cases) CompileCase(part, statement, subject, end);
  CompileBlock(statement.otherwise);
  m_Code.Bind(end);
  m_Code.ResumeHere(subjectMark);
  ReleaseHidden(subject, kSelectRegisters);
}

void BodyCompiler::CompileCase(const SelectCase& part, const SelectStmt& statement, std::uint16_t subject,
                               Label& end) {
  const std::uint32_t used = m_Code.NextTemporary();
  Label body, next;
  std::vector<std::size_t> marks;
  for (const Expr* candidate : part.values) {
    marks.push_back(m_Code.Mark(statement.position));
    const Operand operand = CompileOperand(*candidate);
    m_Code.Emit(Op::JumpIfEqual, 0, subject, operand.index, operand.isConstant ? kConstantC : 0);
    m_Code.EmitTarget(body);
    m_Code.FreeTemporaries(used);
  }
  m_Code.Jump(next);
  m_Code.Bind(body);
  for (const std::size_t mark : marks) m_Code.ResumeHere(mark);
  CompileBlock(part.body);
  m_Code.Jump(end);
  m_Code.Bind(next);
}

void BodyCompiler::CompileWith(const WithStmt& statement) {
  const std::size_t mark = Mark(statement.position);
  const std::uint16_t object = TakeHidden(kWithRegisters);
  const std::uint32_t used = m_Code.NextTemporary();
  m_Code.Emit(Op::Clear, object, 0, 0, kWithRegisters);
  m_Code.Emit(Op::RequireObject, object, CompileToRegister(*statement.object));
  m_Code.FreeTemporaries(used);
  m_Code.ResumeHere(mark);
  m_Withs.push_back(object);
  CompileBlock(statement.body);
  m_Withs.pop_back();
  ReleaseHidden(object, kWithRegisters);
}

void BodyCompiler::CompileExit(const ExitStmt& statement) {
  if (statement.exit != ExitKind::Do && statement.exit != ExitKind::For) {
    EmitReturn();
    return;
  }
  for (auto loop = m_Loops.rbegin(); loop != m_Loops.rend(); ++loop) {
    if (loop->exit != statement.exit) continue;
    // Objects held by statements inside the loop are released now, not when their registers are reused.
    const std::size_t held = m_Hidden - loop->hidden;
    if (held)
      m_Code.Emit(Op::Clear, static_cast<std::uint16_t>(m_FirstHidden + loop->hidden), 0, 0,
                  static_cast<std::uint8_t>(std::min<std::size_t>(held, 255)));
    m_Code.Jump(*loop->end);
    return;
  }
}

void BodyCompiler::CompileReDim(const ReDimStmt& statement) {
  for (const ReDimTarget& target : statement.targets) {
    const std::uint32_t used = m_Code.NextTemporary();
    const std::uint16_t bounds = EmitArguments(target.bounds, Passing::ByValue);
    const std::uint8_t count = Count(target.bounds.size());
    if (target.array->kind == ExprKind::Name) {
      const std::uint16_t reference = m_Code.AllocateTemporary();
      EmitReferenceTo(Resolve(*target.array), reference);
      EmitReDim(reference, bounds, count, statement.preserve);
    } else {
      ReDimMember(static_cast<const MemberExpr&>(*target.array), bounds, count, statement.preserve);
    }
    m_Code.FreeTemporaries(used);
  }
}

// The array of another object is read, changed and assigned back.
void BodyCompiler::ReDimMember(const MemberExpr& member, std::uint16_t bounds, std::uint8_t count,
                               bool preserve) {
  const std::uint16_t reference = m_Code.AllocateTemporary();
  const std::uint16_t value = m_Code.AllocateTemporary();
  CompileInto(member, value);
  m_Code.Emit(Op::RefRegister, reference, value);
  EmitReDim(reference, bounds, count, preserve);
  const std::uint16_t object = ObjectOf(member);
  const std::uint16_t argument = m_Code.AllocateTemporary();
  m_Code.Emit(Op::Move, argument, value);
  m_Code.Emit(Op::AssignMember, argument, object, 0, 1);
  m_Code.EmitWord(m_Code.Member(m_Context.linkage.names.Add(member.name), kNoName));
}

void BodyCompiler::EmitReDim(std::uint16_t reference, std::uint16_t bounds, std::uint8_t count,
                             bool preserve) {
  m_Code.Emit(Op::ReDim, reference, bounds, 0, count);
  m_Code.EmitWord(preserve);
}

void BodyCompiler::CompileErase(const EraseStmt& statement) {
  for (const Expr* array : statement.arrays) {
    const std::uint32_t used = m_Code.NextTemporary();
    const std::uint16_t reference = m_Code.AllocateTemporary();
    EmitReference(*array, reference);
    m_Code.Emit(Op::Erase, reference);
    m_Code.FreeTemporaries(used);
  }
}

}  // namespace cardwright::vbscript
