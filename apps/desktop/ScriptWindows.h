#pragma once

#include <optional>

#include "cardwright/robot/Workplace.h"
#include "desktop/DesktopSession.h"
#include "desktop/UnseenDesktop.h"
#include "launcher/DesktopModule.h"

namespace cardwright::desktop {

/// The toolkit and the library as a script holds them once it has asked for one of their classes. Without a
/// display the windows are drawn where nobody sees them.
class ScriptWindows final : public ScriptDesktop {
 public:
  /// Error 5 with a description where a display is required and there is none.
  ScriptWindows(app::ScriptDisplay display, ScriptSurroundings& surroundings);

  void Serve(std::chrono::milliseconds time) override;
  bool HasDisplay() const override;

 private:
  DesktopSession m_Session;
  std::optional<UnseenDesktop> m_Unseen;
  robot::Workplace m_Workplace;
};

}  // namespace cardwright::desktop
