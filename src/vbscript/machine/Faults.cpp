#include "vbscript/machine/Machine.h"

namespace cardwright::vbscript {

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
    PopFrame();
  }
  throw ScriptFault(Error(pending.number, pending.description, pending.source), pending.position,
                    pending.report);
}

void Machine::Unwind(std::size_t depth) noexcept {
  while (m_Depth > depth) {
    Current().result = nullptr;
    PopFrame();
  }
}

void Machine::CheckStop() {
  if (std::chrono::steady_clock::now() >= m_Deadline) m_Stop.store(true, std::memory_order_relaxed);
  if (m_Stop.load(std::memory_order_relaxed)) throw Interrupted{};
}

void Machine::Observe(const Procedure& procedure, std::size_t instruction) {
  const StatementMark* mark = procedure.MarkAt(instruction);
  if (m_Observer && mark)
    m_Observer->OnStatement(procedure.module->Name(), mark->position.line, mark->position.column);
}

}  // namespace cardwright::vbscript
