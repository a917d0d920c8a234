#include "vbscript/machine/Machine.h"
#include "vbscript/machine/StackRoom.h"

namespace cardwright::vbscript {

namespace {

constexpr int kOutOfStackSpace = 28;
constexpr std::size_t kFirstFrames = 32;

// What is passed by value, or into a parameter by value, is a variable of its own.
void TakeValues(const Procedure& procedure, Variant* registers) {
  for (std::size_t k = 0; k < procedure.parameters; ++k) {
    if (!procedure.byValue[k] || !registers[k].IsByRef()) continue;
    Variant value = static_cast<const Variant&>(registers[k]).Deref();
    registers[k] = std::move(value);
  }
}

}  // namespace

void Machine::CheckNesting() const {
  if (!HasStackRoom()) Raise(kOutOfStackSpace);
}

Frame& Machine::AddFrame(const Procedure& procedure, Instance* me, Variant* result) {
  if (m_Depth >= static_cast<std::size_t>(m_Limits.callDepth)) Raise(kOutOfStackSpace);
  if (m_Depth == m_Frames.size()) m_Frames.resize(std::max(kFirstFrames, 2 * m_Depth));
  Frame& frame = m_Frames[m_Depth];
  frame = {.procedure = &procedure, .pc = procedure.code.data(), .result = result, .me = me};
  if (m_Depth) {
    frame.top = m_Frames[m_Depth - 1].top;
    frame.block = m_Frames[m_Depth - 1].block;
  } else {
    frame.top = m_Registers.Bottom();
  }
  procedure.AddRef();
  if (me) me->AddRef();
  ++m_Depth;
  return frame;
}

void Machine::PushFrame(const Procedure& procedure, Instance* me, Args arguments, Variant* result,
                        ArgumentPlace where) {
  const std::size_t count = arguments.size();
  if (count != procedure.parameters) Raise(ErrorNumber::WrongArgumentCount);
  // Arguments at the end of the caller's registers stay where they are and the new frame starts there. Code
  // outside procedures has its registers elsewhere, so its arguments have to move.
  const bool stay = where == ArgumentPlace::InRegisters && count && !Current().procedure->isOutermost;
  Frame& frame = AddFrame(procedure, me, result);
  const auto place = m_Registers.Take(stay ? arguments.data() : frame.top, frame.block, procedure.registers);
  Variant* const registers = place.start;
  if (registers != arguments.data())
    for (std::size_t k = 0; k < count; ++k) registers[k] = std::move(arguments[k]);
  if (procedure.hasByValue) TakeValues(procedure, registers);
  for (std::size_t k = count; k < procedure.firstTemporary; ++k) registers[k].Reset();
  frame.registers = registers;
  frame.top = registers + procedure.registers;
  frame.block = place.block;
}

void Machine::PopFrame() noexcept {
  // By value: what is released may run code that pushes frames, which moves them.
  const Frame frame = m_Frames[m_Depth - 1];
  const Procedure& procedure = *frame.procedure;
  Variant outcome;
  if (frame.result && procedure.result != kNoRegister) outcome.Swap(frame.registers[procedure.result]);
  const std::size_t first = procedure.isOutermost ? procedure.firstTemporary : 0;
  for (std::size_t k = first; k < procedure.registers; ++k) frame.registers[k].Reset();
  delete frame.scope;
  --m_Depth;
  if (frame.result) *frame.result = std::move(outcome);
  if (frame.me) frame.me->Release();
  procedure.Release();
}

Variant Machine::Enter(const Procedure& procedure, Instance* me, Args args) {
  CheckNesting();
  Variant outcome;
  std::vector<Variant> copies(args.begin(), args.end());
  PushFrame(procedure, me, copies, &outcome, ArgumentPlace::Elsewhere);
  Run();
  return outcome;
}

void Machine::RunOutermost(const Procedure& code, Variant* variables) {
  CheckNesting();
  AddFrame(code, nullptr, nullptr).registers = variables;
  Run();
}

}  // namespace cardwright::vbscript
