#include "runtime/RedrawPause.h"

#include "automation/Errors.h"
#include "runtime/HostCommands.h"
#include "shared/ModuleState.h"

namespace cardwright {

RedrawPause::RedrawPause(bool active, End end) : m_Active(active), m_End(end) {
  if (m_Active) SharedHost().ORVExecute(Text(commands::kRedrawOff));
}

RedrawPause::~RedrawPause() {
  if (!m_Active) return;
  Attempt([] { SharedHost().ORVExecute(Text(commands::kRedrawOn)); });
  if (m_End == End::Redraw) Attempt([] { SharedHost().ORVExecute(Text(commands::kRedraw)); });
}

}  // namespace cardwright
