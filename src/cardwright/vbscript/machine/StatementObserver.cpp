// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/Machine.h"

namespace cardwright::vbscript {

namespace {

// Generated code has lines of its own, which say nothing about the file of the script.
constexpr Position kNowhere{.line = 0, .column = 0};

}  // namespace

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
