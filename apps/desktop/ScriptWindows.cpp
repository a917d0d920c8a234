#include "desktop/ScriptWindows.h"

#include <QEventLoop>
#include <QTimer>

#include "desktop/Classes.h"

namespace cardwright::desktop {

ScriptWindows::ScriptWindows(app::ScriptDisplay display, ClassRegistry& classes)
    : m_Session(display == app::ScriptDisplay::Required ? Display::Needed : Display::IfThere) {
  // A script ends by itself, however many windows it closes.
  QApplication::setQuitOnLastWindowClosed(false);
  AddDesktopClasses(classes);
}

void ScriptWindows::Serve(std::chrono::milliseconds time) {
  QEventLoop loop;
  QTimer::singleShot(time, &loop, &QEventLoop::quit);
  loop.exec();
}

bool ScriptWindows::HasDisplay() const { return m_Session.HasDisplay(); }

}  // namespace cardwright::desktop
