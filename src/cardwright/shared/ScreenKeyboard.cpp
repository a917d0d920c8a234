// SPDX-License-Identifier: MIT
#include "cardwright/shared/ScreenKeyboard.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {

void ShowScreenKeyboard() {
  const ModuleState& module = Module();
  if (!module.enableScreenKeyboard || !module.desktop) return;
  BestEffort([&] {
    Desktop& desktop = *module.desktop;
    desktop.Start(desktop.Settings().Get(u"Cardwright", u"ScreenKeyboard", u"Command", u"onboard"));
  });
}

}  // namespace cardwright
