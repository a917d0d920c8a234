#include "cardwright/vbscript/machine/Machine.h"

namespace cardwright::vbscript {

namespace {

// Code that a script made has lines of its own, which are none of its file.
constexpr Position kNowhere{.line = 0, .column = 0};

}  // namespace

Machine::Pending Machine::Describe(const Error& error) const {
  Pending pending;
  pending.number = error.Number();
  pending.description = pending.report = error.Description();
  pending.source = error.Source();
  if (pending.source.IsEmpty()) pending.source = kRuntimeErrorSource;
  if (const auto* named = dynamic_cast<const NamedError*>(&error)) {
    if (!named->Name().IsEmpty()) pending.report = pending.description + u": '" + named->Name() + u"'";
  } else if (const auto* fault = dynamic_cast<const ScriptFault*>(&error); fault && fault->IsOf(*this)) {
    pending.report = fault->Report();
    pending.position = fault->Where();
    pending.isPlaced = true;
  }
  return pending;
}

void Machine::Handle(Pending pending, std::size_t entry) {
  // To those that called the script from inside a call of its own, the order to stop came as an error.
  if (IsStopping()) {
    Unwind(entry - 1);
    throw Interrupted{};
  }
  while (m_Depth >= entry) {
    Frame& frame = Current();
    const Procedure& procedure = *frame.procedure;
    const auto at = static_cast<std::size_t>(frame.pc - procedure.code.data()) - 1;
    const StatementMark* mark = procedure.MarkAt(at);
    if (!pending.isPlaced && mark) {
      pending.position = mark->position;
      pending.isPlaced = true;
    }
    if (frame.resumeNext && mark) {
      m_Err->Note(pending.number, pending.description, pending.source);
      Variant* const registers = frame.registers;
      frame.pc = procedure.code.data() + mark->resume;
      for (std::size_t k = procedure.firstTemporary; k < procedure.registers; ++k) registers[k].Reset();
      return;
    }
    frame.result = nullptr;
    PopFrame(Ending::ByError);
  }
  const MemoryBudget::Exemption exemption;
  throw ScriptFault(Error(pending.number, pending.description, pending.source), pending.position,
                    pending.report, *this);
}

void Machine::Unwind(std::size_t depth) noexcept {
  while (m_Depth > depth) {
    Current().result = nullptr;
    PopFrame(Ending::ByError);
  }
}

void Machine::CheckDeadline() noexcept {
  if (m_Deadline != kNoDeadline && std::chrono::steady_clock::now() >= m_Deadline) Interrupt();
}

// In the middle of work that nothing may come between: the host is asked after it.
bool Machine::ShouldStop() noexcept {
  CheckDeadline();
  Order expected = Order::None;
  if (m_HostPoll.IsDue()) m_Order.compare_exchange_strong(expected, Order::Poll, std::memory_order_relaxed);
  return IsStopping();
}

void Machine::CheckStop() {
  CheckDeadline();
  if (IsStopping()) throw Interrupted{};
}

// Between two steps of the script. What the host does meanwhile may call the script.
void Machine::PollInterrupts() {
  Order expected = Order::Poll;
  m_Order.compare_exchange_strong(expected, Order::None, std::memory_order_relaxed);
  CheckStop();
  if (m_HostPoll.IsDue() && m_HostPoll.Poll(Host())) Interrupt();
  ThrowIfStopping();
}

void Machine::Observe(const Procedure& procedure, std::size_t instruction) {
  const StatementMark* mark = procedure.MarkAt(instruction);
  if (!m_Observer || !mark) return;
  const Position position = procedure.isGenerated ? kNowhere : mark->position;
  m_Observer->OnStatement(procedure.module->Name(), position.line, position.column);
}

void Machine::ObserveReturn() {
  if (!m_Observer || m_Depth < 2) return;
  const Frame& caller = m_Frames[m_Depth - 2];
  const Procedure& procedure = *caller.procedure;
  const StatementMark* mark =
      procedure.MarkAt(static_cast<std::size_t>(caller.pc - procedure.code.data()) - 1);
  if (!mark) return;
  const Position position = procedure.isGenerated ? kNowhere : mark->position;
  m_Observer->OnReturn(procedure.module->Name(), position.line, position.column);
}

}  // namespace cardwright::vbscript
