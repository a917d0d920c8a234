#include "cardwright/runtime/RedrawPause.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/runtime/HostCommands.h"
#include "cardwright/shared/ModuleState.h"

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
