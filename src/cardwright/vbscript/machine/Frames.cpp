// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/Machine.h"
#include "cardwright/vbscript/machine/StackRoom.h"

namespace cardwright::vbscript {

namespace {

constexpr std::size_t kFirstFrames = 32;
constexpr std::uint32_t kCallsBetweenPolls = 1024;

// A parameter declared ByVal becomes a variable of its own: a reference in it is replaced by a copy of the
// value.
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

// Only where a script is running, so that a thread with little stack can still start one.
void Machine::CheckRoomForSource() const {
  if (m_Depth) CheckNesting(kStackForSource);
}

inline void Machine::UpdateCurrent() noexcept { m_Current = m_Depth ? &m_Frames[m_Depth - 1] : nullptr; }

void Machine::AddFrames() {
  if (m_Depth >= static_cast<std::size_t>(m_Limits.callDepth)) Raise(ErrorNumber::OutOfStackSpace);
  m_Frames.resize(std::min<std::size_t>(std::max(kFirstFrames, 2 * m_Depth), m_Limits.callDepth));
  UpdateCurrent();
}

// The end of the registers in use.
inline RegisterStack::Window Machine::EndOfRegisters() {
  if (m_Depth == 0) return {m_Registers.Bottom(), 0};
  return {Current().top, Current().block};
}

// The caller sets the registers.
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
  // Arguments at the top of the caller's registers stay where they are: the new window starts there. Code
  // outside procedures has its registers in its module instead, so its arguments are moved.
  const bool stay = where == Arguments::AtTopOfCaller && count && !Current().procedure->isOutermost;
  // Allocating may fail, and every frame has registers: so before the frame is added.
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
  // Releasing an object may run code that pushes frames, which may move this one: everything needed is
  // copied.
  const Frame& frame = Current();
  const Procedure& procedure = *frame.procedure;
  Variant* const registers = frame.registers;
  Variant* const result = frame.result;
  Instance* const me = frame.me;
  ScopeVariables* const scope = frame.scope;
  // After the last instruction no temporary holds anything to release. The variables of code outside
  // procedures belong to the module.
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

Variant Machine::RunProcedure(const Procedure& procedure, Instance* me, Args args) {
  CheckNesting();
  // A call may be too short to get to an interrupt check of its own. Objects that create objects when they
  // end could go on like this for ever.
  CheckStop();
  if (++m_CallsSincePoll % kCallsBetweenPolls == 0) PollInterrupts();
  Variant outcome;
  std::vector<Variant> copies(args.begin(), args.end());
  PushFrame(procedure, me, copies, &outcome, Arguments::Elsewhere);
  Run();
  ThrowIfStopping();  // Class_Terminate lets no stop out, but the stop is meant for all running code
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
