// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/Machine.h"

namespace cardwright::vbscript {

// An error takes the position where it was raised; one that already went through a script of this machine,
// inside a call to the host, keeps the position of that script.
Machine::PendingError Machine::Describe(const Error& error) const {
  PendingError pending;
  pending.number = error.Number();
  pending.description = pending.report = error.Description();
  pending.source = error.Source();
  if (pending.source.IsEmpty()) pending.source = kRuntimeErrorSource;
  if (const auto* named = dynamic_cast<const NamedError*>(&error)) {
    if (!named->Name().IsEmpty()) pending.report = pending.description + u": '" + named->Name() + u"'";
  } else if (const auto* fault = dynamic_cast<const ScriptFault*>(&error); fault && fault->IsOf(*this)) {
    pending.report = fault->Report();
    pending.position = fault->Where();
    pending.hasPosition = true;
  }
  return pending;
}

// Looks for a frame with On Error Resume Next, from the topmost one down to the one that Run was entered for,
// and ends the frames on the way. The found frame continues after the failed statement. Where there is none,
// the error leaves Run as a ScriptFault.
void Machine::Handle(PendingError pending, std::size_t baseDepth) {
  // A host that the script has called, and that has called the script, gets a stop as an error. Here it
  // becomes the stop again.
  if (IsStopping()) {
    Unwind(baseDepth - 1);
    throw Interrupted{};
  }
  while (m_Depth >= baseDepth) {
    Frame& frame = Current();
    const Procedure& procedure = *frame.procedure;
    const auto at = static_cast<std::size_t>(frame.pc - procedure.code.data()) - 1;
    const StatementMark* mark = procedure.MarkAt(at);
    if (!pending.hasPosition && mark) {
      pending.position = mark->position;
      pending.hasPosition = true;
    }
    if (frame.resumeNext && mark) {
      m_Err->Set(pending.number, pending.description, pending.source);
      ResumeAfter(*mark, frame);
      return;
    }
    frame.result = nullptr;
    PopFrame(Ending::ByError);
  }
  const MemoryBudget::Exemption exemption;
  throw ScriptFault(Error(pending.number, pending.description, pending.source), pending.position,
                    pending.report, *this);
}

// The failed statement may have left values in temporaries. Releasing them may run code that moves the frame.
void Machine::ResumeAfter(const StatementMark& mark, Frame& frame) noexcept {
  const Procedure& procedure = *frame.procedure;
  Variant* const registers = frame.registers;
  frame.pc = procedure.code.data() + mark.resume;
  for (std::size_t k = procedure.firstTemporary; k < procedure.registers; ++k) registers[k].Reset();
}

void Machine::Unwind(std::size_t depth) noexcept {
  while (m_Depth > depth) {
    Current().result = nullptr;
    PopFrame(Ending::ByError);
  }
}

}  // namespace cardwright::vbscript
