#include "desktop/ScriptWindows.h"

#include <QLoggingCategory>

#include "cardwright/robot/EventService.h"
#include "desktop/Classes.h"

namespace cardwright::desktop {

ScriptWindows::ScriptWindows(app::ScriptDisplay display, ScriptSurroundings& surroundings)
    : m_Session(display == app::ScriptDisplay::Required ? Display::Needed : Display::IfThere) {
  // A script ends by itself, however many windows it closes.
  QApplication::setQuitOnLastWindowClosed(false);
  m_Session.LeaveUnattended();
  if (!m_Session.HasDisplay()) {
    // Where nobody sees the windows, nobody wants to read what their platform cannot do for them.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    m_Unseen.emplace([&surroundings](const Text& line) {
      if (surroundings.say) surroundings.say(line);
    });
  }
  AddDesktopClasses(surroundings.classes);
  m_Workplace.AddClasses(surroundings.classes);
}

void ScriptWindows::Serve(std::chrono::milliseconds time) { robot::ServeEvents(time); }

bool ScriptWindows::HasDisplay() const { return m_Session.HasDisplay(); }

}  // namespace cardwright::desktop
