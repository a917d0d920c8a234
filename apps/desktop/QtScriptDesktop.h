// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "cardwright/robot/ScriptWindows.h"
#include "desktop/DesktopSession.h"
#include "desktop/UnseenDesktop.h"
#include "launcher/DesktopModule.h"

namespace cardwright::desktop {

/// The toolkit's part of a script run, started when the script first asks for one of its classes. Without a
/// display windows are drawn in memory only.
class QtScriptDesktop final : public ScriptDesktop {
 public:
  /// Error 5 with a description where a display is required and there is none.
  QtScriptDesktop(app::ScriptDisplay display, ScriptEnvironment& environment);

  void ProcessEvents(std::chrono::milliseconds time) override;
  bool HasDisplay() const override;

 private:
  DesktopSession m_Session;
  std::optional<UnseenDesktop> m_Unseen;
  robot::ScriptWindows m_Windows;
};

}  // namespace cardwright::desktop
