#include "cardwright/vbscript/compile/BodyCompiler.h"

namespace cardwright::vbscript {

std::size_t BodyCompiler::Mark(Position position) {
  const std::size_t mark = m_Code.Mark(position);
  if (m_Context.isObserved) m_Code.Emit(Op::Observe);
  return mark;
}

// Hidden registers lie between the variables and the values on the way; nested statements take them like a
// stack.
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
  const std::uint16_t value = m_Code.Temporary();
  EvaluateInto(expression, value);
  m_Code.Emit(Op::Take, result, value);
  m_Code.Emit(Op::Return);
  m_Procedure.Complete();
}

void BodyCompiler::CompileBlock(Block body) {
  for (const Stmt* statement : body) CompileStatement(*statement);
}

void BodyCompiler::CompileStatement(const Stmt& statement) {
  switch (statement.kind) {
    case StmtKind::Dim:
    case StmtKind::Const: return;  // in force from the start
    case StmtKind::If: return CompileIf(static_cast<const IfStmt&>(statement));
    case StmtKind::Select: return CompileSelect(static_cast<const SelectStmt&>(statement));
    case StmtKind::For: return CompileFor(static_cast<const ForStmt&>(statement));
    case StmtKind::ForEach: return CompileForEach(static_cast<const ForEachStmt&>(statement));
    case StmtKind::Loop: return CompileLoop(static_cast<const LoopStmt&>(statement));
    case StmtKind::With: return CompileWith(static_cast<const WithStmt&>(statement));
    default: break;
  }
  const std::size_t mark = Mark(statement.position);
  switch (statement.kind) {
    case StmtKind::Assign: CompileAssign(static_cast<const AssignStmt&>(statement)); break;
    case StmtKind::Call: CompileCall(static_cast<const CallStmt&>(statement)); break;
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

// A condition that fails counts as true where errors are passed over: the branch is entered.
void BodyCompiler::CompileIf(const IfStmt& statement) {
  Label end;
  for (std::size_t k = 0; k < statement.branches.size(); ++k) {
    const IfBranch& branch = statement.branches[k];
    Label next;
    const std::size_t mark = Mark(branch.position);
    JumpOn(*branch.condition, false, next);
    m_Code.ResumeHere(mark);
    CompileBlock(branch.body);
    if (k + 1 < statement.branches.size() || statement.hasElse) m_Code.Jump(end);
    m_Code.Bind(next);
  }
  CompileBlock(statement.otherwise);
  m_Code.Bind(end);
}

// A subject that fails skips the whole statement; a value that fails counts as a match.
void BodyCompiler::CompileSelect(const SelectStmt& statement) {
  const std::size_t subjectMark = Mark(statement.position);
  const std::uint16_t subject = TakeHidden(kSelectRegisters);
  const std::uint32_t used = m_Code.TemporariesUsed();
  const std::uint16_t value = m_Code.Temporary();
  EvaluateInto(*statement.subject, value);
  m_Code.Emit(Op::Let, subject, value);
  m_Code.FreeTo(used);
  Label end;
  for (const SelectCase& part : statement.cases) {
    Label body, next;
    std::vector<std::size_t> marks;
    for (const Expr* candidate : part.values) {
      marks.push_back(m_Code.Mark(statement.position));
      const Operand operand = Evaluate(*candidate);
      m_Code.Emit(Op::JumpIfEqual, 0, subject, operand.index, operand.isConstant ? kConstantC : 0);
      m_Code.EmitTarget(body);
      m_Code.FreeTo(used);
    }
    m_Code.Jump(next);
    m_Code.Bind(body);
    for (const std::size_t mark : marks) m_Code.ResumeHere(mark);
    CompileBlock(part.body);
    m_Code.Jump(end);
    m_Code.Bind(next);
  }
  CompileBlock(statement.otherwise);
  m_Code.Bind(end);
  m_Code.ResumeHere(subjectMark);
  ReleaseHidden(subject, kSelectRegisters);
}

// The variable that a loop goes by: its own register, or the given one, which comes to refer to it.
std::uint16_t BodyCompiler::EmitControlVariable(const Place& place, std::uint16_t holder) {
  if (place.kind == PlaceKind::Register) return place.r;
  const bool isFunction = place.symbol == SymbolKind::Procedure || place.symbol == SymbolKind::Builtin;
  isFunction ? EmitIllegalAssignment(place) : EmitHolder(place, holder);
  return holder;
}

// Limits that fail leave a loop that was never prepared: its body runs once and Next is an error.
void BodyCompiler::CompileFor(const ForStmt& statement) {
  const Place place = Find(*statement.variable);
  const std::size_t mark = Mark(statement.position);
  const std::size_t outside = m_Hidden;
  const std::uint16_t bounds = TakeHidden(kForRegisters);
  const std::uint32_t used = m_Code.TemporariesUsed();
  m_Code.Emit(Op::Clear, bounds, 0, 0, kForRegisters);
  const std::uint16_t variable = EmitControlVariable(place, static_cast<std::uint16_t>(bounds + 3));
  const Expr* const parts[] = {statement.from, statement.to, statement.step};
  std::uint16_t values[3];
  for (std::size_t k = 0; k < 3; ++k) {
    values[k] = m_Code.Temporary();
    parts[k] ? EvaluateInto(*parts[k], values[k]) : LoadConstant(Variant(std::int16_t{1}), values[k]);
  }
  for (std::uint16_t k = 0; k < 3; ++k)
    m_Code.Emit(Op::Take, static_cast<std::uint16_t>(bounds + k), values[k]);
  m_Code.FreeTo(used);
  Label end;
  m_Code.Emit(Op::ForPrepare, variable, bounds);
  m_Code.EmitTarget(end);
  m_Code.ResumeHere(mark);
  const std::uint32_t body = m_Code.Here();
  m_Loops.push_back({ExitKind::For, &end, outside});
  CompileBlock(statement.body);
  m_Loops.pop_back();
  const std::size_t nextMark = m_Code.Mark(statement.nextPosition);
  m_Code.Emit(Op::ForNext, variable, bounds);
  m_Code.EmitTargetBack(body);
  m_Code.ResumeHere(nextMark);
  m_Code.Bind(end);
  ReleaseHidden(bounds, kForRegisters);
}

void BodyCompiler::CompileForEach(const ForEachStmt& statement) {
  const Place place = Find(*statement.variable);
  const std::size_t mark = Mark(statement.position);
  const std::size_t outside = m_Hidden;
  const std::uint16_t state = TakeHidden(kEachRegisters);
  const std::uint32_t used = m_Code.TemporariesUsed();
  m_Code.Emit(Op::Clear, state, 0, 0, kEachRegisters);
  const std::uint16_t variable = EmitControlVariable(place, static_cast<std::uint16_t>(state + 1));
  m_Code.Emit(Op::EachPrepare, state, EvaluateToRegister(*statement.collection));
  m_Code.FreeTo(used);
  Label next, end;
  m_Code.Jump(next);
  // What cannot be enumerated runs the body once where errors are passed over.
  m_Code.ResumeHere(mark);
  const std::uint32_t body = m_Code.Here();
  m_Loops.push_back({ExitKind::For, &end, outside});
  CompileBlock(statement.body);
  m_Loops.pop_back();
  m_Code.Bind(next);
  const std::size_t nextMark = m_Code.Mark(statement.position);
  m_Code.Emit(Op::EachNext, variable, state);
  m_Code.EmitTarget(end);
  m_Code.JumpBack(body);
  m_Code.ResumeHere(nextMark);
  m_Code.Bind(end);
  ReleaseHidden(state, kEachRegisters);
}

void BodyCompiler::CompileLoop(const LoopStmt& statement) {
  const bool first = statement.loop == LoopKind::DoWhile || statement.loop == LoopKind::DoUntil ||
                     statement.loop == LoopKind::WhileWend;
  const bool until = statement.loop == LoopKind::DoUntil || statement.loop == LoopKind::LoopUntil;
  Label end;
  const std::uint32_t start = m_Code.Here();
  if (first) {
    const std::size_t mark = Mark(statement.position);
    JumpOn(*statement.condition, until, end);
    m_Code.ResumeHere(mark);
  } else if (m_Context.isObserved) {
    m_Code.ResumeHere(Mark(statement.position));
  }
  if (statement.loop != LoopKind::WhileWend) m_Loops.push_back({ExitKind::Do, &end, m_Hidden});
  CompileBlock(statement.body);
  if (statement.loop != LoopKind::WhileWend) m_Loops.pop_back();
  const std::size_t mark = m_Code.Mark(statement.endPosition);
  if (!first && statement.condition) JumpOn(*statement.condition, until, end);
  m_Code.JumpBack(start);
  m_Code.Bind(end);
  m_Code.ResumeHere(mark);  // a condition at the end that fails leaves the loop
}

void BodyCompiler::CompileWith(const WithStmt& statement) {
  const std::size_t mark = Mark(statement.position);
  const std::uint16_t object = TakeHidden(kWithRegisters);
  const std::uint32_t used = m_Code.TemporariesUsed();
  m_Code.Emit(Op::Clear, object, 0, 0, kWithRegisters);
  m_Code.Emit(Op::RequireObject, object, EvaluateToRegister(*statement.object));
  m_Code.FreeTo(used);
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
    // What statements inside the loop hold goes now, not when their registers are used again.
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
    const std::uint32_t used = m_Code.TemporariesUsed();
    const std::uint16_t base = EmitArguments(target.bounds, Passing::ByValue);
    const std::uint16_t holder = m_Code.Temporary();
    if (target.array->kind == ExprKind::Name) {
      EmitHolder(Find(*target.array), holder);
      m_Code.Emit(Op::ReDim, holder, base, 0, Count(target.bounds.size()));
      m_Code.EmitWord(statement.preserve);
    } else {
      // The array of another object is taken, changed and put back.
      const auto& member = static_cast<const MemberExpr&>(*target.array);
      const std::uint16_t value = m_Code.Temporary();
      EvaluateInto(member, value);
      m_Code.Emit(Op::RefRegister, holder, value);
      m_Code.Emit(Op::ReDim, holder, base, 0, Count(target.bounds.size()));
      m_Code.EmitWord(statement.preserve);
      const std::uint16_t object = ObjectOf(member);
      const std::uint16_t argument = m_Code.Temporary();
      m_Code.Emit(Op::Take, argument, value);
      m_Code.Emit(Op::PutMember, argument, object, 0, 1);
      m_Code.EmitWord(m_Code.Member(m_Context.linkage.names.Add(member.name), kNoName));
    }
    m_Code.FreeTo(used);
  }
}

void BodyCompiler::CompileErase(const EraseStmt& statement) {
  for (const Expr* array : statement.arrays) {
    const std::uint32_t used = m_Code.TemporariesUsed();
    const std::uint16_t holder = m_Code.Temporary();
    EmitReference(*array, holder);
    m_Code.Emit(Op::Erase, holder);
    m_Code.FreeTo(used);
  }
}

}  // namespace cardwright::vbscript
