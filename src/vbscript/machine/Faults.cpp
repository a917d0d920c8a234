#include "vbscript/machine/Machine.h"

namespace cardwright::vbscript {

namespace {

// Code that a script made has lines of its own, which are none of its file.
constexpr Position kNowhere{.line = 0, .column = 0};

}  // namespace

Machine::Pending Machine::Describe(const Error& error) {
  Pending pending;
  pending.number = error.Number();
  pending.description = pending.report = error.Description();
  pending.source = error.Source();
  if (pending.source.IsEmpty()) pending.source = kRuntimeErrorSource;
  if (const auto* named = dynamic_cast<const NamedError*>(&error)) {
    if (!named->Name().IsEmpty()) pending.report = pending.description + u": '" + named->Name() + u"'";
  } else if (const auto* fault = dynamic_cast<const ScriptFault*>(&error)) {
    pending.report = fault->Report();
    pending.position = fault->Where();
    pending.isPlaced = true;
  }
  return pending;
}

void Machine::Handle(Pending pending, std::size_t entry) {
  // To those that called the script from inside a call of its own, the order to stop came as an error.
  if (m_Stop.load(std::memory_order_relaxed)) {
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
                    pending.report);
}

void Machine::Unwind(std::size_t depth) noexcept {
  while (m_Depth > depth) {
    Current().result = nullptr;
    PopFrame(Ending::ByError);
  }
}

void Machine::NoteTime() noexcept {
  if (m_Deadline != kNoDeadline && std::chrono::steady_clock::now() >= m_Deadline)
    m_Stop.store(true, std::memory_order_relaxed);
}

bool Machine::LookForStop() noexcept {
  NoteTime();
  return m_Stop.load(std::memory_order_relaxed);
}

void Machine::CheckStop() {
  NoteTime();
  if (m_Stop.load(std::memory_order_relaxed)) throw Interrupted{};
}

void Machine::Observe(const Procedure& procedure, std::size_t instruction) {
  const StatementMark* mark = procedure.MarkAt(instruction);
  if (!m_Observer || !mark) return;
  const Position position = procedure.isMade ? kNowhere : mark->position;
  m_Observer->OnStatement(procedure.module->Name(), position.line, position.column);
}

void Machine::ObserveReturn() {
  if (!m_Observer || m_Depth < 2) return;
  const Frame& caller = m_Frames[m_Depth - 2];
  const Procedure& procedure = *caller.procedure;
  const StatementMark* mark =
      procedure.MarkAt(static_cast<std::size_t>(caller.pc - procedure.code.data()) - 1);
  if (!mark) return;
  const Position position = procedure.isMade ? kNowhere : mark->position;
  m_Observer->OnReturn(procedure.module->Name(), position.line, position.column);
}

}  // namespace cardwright::vbscript
