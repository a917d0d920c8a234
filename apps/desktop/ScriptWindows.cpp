#include "desktop/ScriptWindows.h"

#include <QLoggingCategory>

#include "desktop/Classes.h"
#include "robot/EventService.h"

namespace cardwright::desktop {

ScriptWindows::ScriptWindows(app::ScriptDisplay display, ClassRegistry& classes)
    : m_Session(display == app::ScriptDisplay::Required ? Display::Needed : Display::IfThere) {
  // A script ends by itself, however many windows it closes.
  QApplication::setQuitOnLastWindowClosed(false);
  // Where nobody sees the windows, nobody wants to read what their platform cannot do for them.
  if (!m_Session.HasDisplay()) QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  AddDesktopClasses(classes);
  m_Workplace.AddClasses(classes);
}

void ScriptWindows::Serve(std::chrono::milliseconds time) { robot::ServeEvents(time); }

bool ScriptWindows::HasDisplay() const { return m_Session.HasDisplay(); }

}  // namespace cardwright::desktop
