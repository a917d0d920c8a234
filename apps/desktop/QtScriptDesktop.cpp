// SPDX-License-Identifier: MIT
#include "desktop/QtScriptDesktop.h"

#include <QLoggingCategory>

#include "cardwright/robot/input/EventProcessing.h"
#include "desktop/Classes.h"

namespace cardwright::desktop {

QtScriptDesktop::QtScriptDesktop(app::ScriptDisplay display, ScriptEnvironment& environment)
    : m_Session(display == app::ScriptDisplay::Required ? Display::Needed : Display::IfThere) {
  // Closing windows must not end the script.
  QApplication::setQuitOnLastWindowClosed(false);
  m_Session.SetUnattended();
  if (!m_Session.HasDisplay()) {
    // Warnings of the platform plug-in about windows that nobody sees would only confuse.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    m_Unseen.emplace([&environment](const Text& line) {
      if (environment.writeLine) environment.writeLine(line);
    });
  }
  AddDesktopClasses(environment.classes);
  m_Windows.AddClasses(environment.classes);
}

void QtScriptDesktop::ProcessEvents(std::chrono::milliseconds time) { robot::ProcessEvents(time); }

bool QtScriptDesktop::HasDisplay() const { return m_Session.HasDisplay(); }

}  // namespace cardwright::desktop
