// SPDX-License-Identifier: MIT
#include "cardwright/runtime/RedrawPause.h"

#include "cardwright/automation/Errors.h"

namespace cardwright {

RedrawPause::RedrawPause(OrvClient host, End end) : m_Host(std::move(host)), m_End(end) {
  m_Host.SuspendRedraw();
}

RedrawPause::~RedrawPause() {
  BestEffort([&] { m_Host.ResumeRedraw(); });
  if (m_End == End::Redraw) BestEffort([&] { m_Host.Redraw(); });
}

}  // namespace cardwright
