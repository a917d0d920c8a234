#include "cardwright/vbscript/machine/Machine.h"
#include "cardwright/vbscript/machine/StackRoom.h"

namespace cardwright::vbscript {

namespace {

constexpr std::size_t kFirstFrames = 32;
constexpr std::uint32_t kCallsBetweenPolls = 1024;

// What is passed by value, or into a parameter by value, is a variable of its own.
void CopyByValueArguments(const Procedure& procedure, Variant* registers) {
  for (std::size_t k = 0; k < procedure.parameters; ++k) {
    if (!procedure.byValue[k] || !registers[k].IsByRef()) continue;
    Variant value = static_cast<const Variant&>(registers[k]).Deref();
    registers[k] = std::move(value);
  }
}

}  // namespace

void Machine::CheckNesting(std::size_t stack) const {
  if (!HasStackRoom(stack)) Raise(ErrorNumber::OutOfStackSpace);
}

// Only for what a running script has read: a thread of little stack may still start one.
void Machine::CheckRoomForSource() const {
  if (m_Depth) CheckNesting(kStackForSource);
}

inline void Machine::UpdateCurrent() noexcept { m_Current = m_Depth ? &m_Frames[m_Depth - 1] : nullptr; }

void Machine::AddFrames() {
  if (m_Depth >= static_cast<std::size_t>(m_Limits.callDepth)) Raise(ErrorNumber::OutOfStackSpace);
  m_Frames.resize(std::min<std::size_t>(std::max(kFirstFrames, 2 * m_Depth), m_Limits.callDepth));
  UpdateCurrent();
}

// What is in use of the register stack ends here.
inline RegisterStack::Window Machine::EndOfRegisters() {
  if (m_Depth == 0) return {m_Registers.Bottom(), 0};
  return {Current().top, Current().block};
}

// The registers are the caller's to set.
inline Frame& Machine::AddFrame(const Procedure& procedure, Instance* me, Variant* result) {
  if (m_Depth == m_Frames.size()) [[unlikely]]
    AddFrames();
  Frame& frame = m_Frames[m_Depth++];
  m_Current = &frame;
  frame.procedure = &procedure;
  frame.pc = procedure.code.data();
  frame.result = result;
  frame.me = me;
  frame.scope = nullptr;
  frame.resumeNext = false;
  procedure.AddRef();
  if (me) me->AddRef();
  return frame;
}

void Machine::PushFrame(const Procedure& procedure, Instance* me, Args arguments, Variant* result,
                        Arguments where) {
  const std::size_t count = arguments.size();
  if (count != procedure.parameters) Raise(ErrorNumber::WrongArgumentCount);
  // Arguments at the end of the caller's registers stay where they are and the new frame starts there. Code
  // outside procedures has its registers elsewhere, so its arguments have to move.
  const bool stay = where == Arguments::AtTopOfCaller && count && !Current().procedure->isOutermost;
  // Room first: what is a frame has its registers.
  const RegisterStack::Window end = EndOfRegisters();
  const auto place =
      m_Registers.Allocate(stay ? arguments.data() : end.start, end.block, procedure.registers);
  Frame& frame = AddFrame(procedure, me, result);
  Variant* const registers = place.start;
  if (registers != arguments.data())
    for (std::size_t k = 0; k < count; ++k) registers[k] = std::move(arguments[k]);
  if (procedure.hasByValue) CopyByValueArguments(procedure, registers);
  for (std::size_t k = count; k < procedure.firstTemporary; ++k) registers[k].Reset();
  frame.registers = registers;
  frame.top = registers + procedure.registers;
  frame.block = place.block;
}

void Machine::PopFrame(Ending ending) noexcept {
  // What is released may run code that pushes frames, which moves them.
  const Frame& frame = Current();
  const Procedure& procedure = *frame.procedure;
  Variant* const registers = frame.registers;
  Variant* const result = frame.result;
  Instance* const me = frame.me;
  ScopeVariables* const scope = frame.scope;
  // Who uses a value on the way leaves nothing counted behind, so after the last instruction only variables
  // may.
  const std::size_t first = procedure.isOutermost ? procedure.firstTemporary : 0;
  const std::size_t end =
      ending == Ending::ByReturn && !procedure.isOutermost ? procedure.firstTemporary : procedure.registers;
  Variant outcome;
  if (result && procedure.result != kNoRegister) outcome.Swap(registers[procedure.result]);
  for (std::size_t k = first; k < end; ++k) registers[k].Reset();
  delete scope;
  --m_Depth;
  UpdateCurrent();
  if (result) *result = std::move(outcome);
  if (me) me->Release();
  procedure.Release();
}

Variant Machine::Enter(const Procedure& procedure, Instance* me, Args args) {
  CheckNesting();
  // Whole calls may be too short to look at the clock themselves, or even to come to a place to stop at:
  // objects that make objects at their end would never come to one.
  CheckStop();
  if (++m_CallsSincePoll % kCallsBetweenPolls == 0) PollInterrupts();
  Variant outcome;
  std::vector<Variant> copies(args.begin(), args.end());
  PushFrame(procedure, me, copies, &outcome, Arguments::Elsewhere);
  Run();
  ThrowIfStopping();  // a stop that the end of an object has swallowed is for all that runs
  return outcome;
}

void Machine::RunOutermost(const Procedure& code, Variant* variables) {
  CheckNesting();
  CheckStop();
  const RegisterStack::Window end = EndOfRegisters();
  Frame& frame = AddFrame(code, nullptr, nullptr);
  frame.registers = variables;
  frame.top = end.start;
  frame.block = end.block;
  Run();
  ThrowIfStopping();
}

}  // namespace cardwright::vbscript
