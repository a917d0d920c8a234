// SPDX-License-Identifier: MIT
#include "desktop/DesktopSession.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/hosting/FormScripts.h"
#include "desktop/Classes.h"
#include "launcher/Languages.h"

namespace cardwright::desktop {
namespace {

// The toolkit ends the program if it finds no display, unless the list has a platform without one.
QByteArray Platforms(Display display) {
  if (display == Display::Unused) return "offscreen";
  QByteArray platforms;
  if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) platforms += "wayland;";
  if (!qEnvironmentVariableIsEmpty("DISPLAY")) platforms += "xcb;";
  return platforms + "offscreen";
}

}  // namespace

DesktopSession::DesktopSession(Display display) {
  const bool chosen = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
  if (!chosen) qputenv("QT_QPA_PLATFORM", Platforms(display));
  m_Application = std::make_unique<QApplication>(m_Argc, m_Argv);
  if (!chosen && display == Display::Needed && !HasDisplay())
    Raise(static_cast<int>(ErrorNumber::InvalidCall), u"there is no display to show the form on");
  QApplication::setApplicationDisplayName(QStringLiteral("Cardwright"));
  ProvideFormScripts(app::Languages(), RestrictedClasses());
  m_Library = std::make_unique<qt::Library>();
  m_Data = std::make_unique<DataSource>(*m_Library);
}

bool DesktopSession::HasDisplay() const {
  const QString platform = QApplication::platformName();
  return platform != u"offscreen" && platform != u"minimal";
}

}  // namespace cardwright::desktop
