#include "desktop/Session.h"

#include "automation/Conversions.h"
#include "automation/Errors.h"
#include "cardwright/Languages.h"
#include "hosting/FormScripts.h"
#include "qt/QtText.h"
#include "shared/ModuleState.h"

namespace cardwright::desktop {
namespace {

// The toolkit ends the program where it finds no display, unless it may go on without one.
QByteArray Platforms(Display display) {
  if (display == Display::Unused) return "offscreen";
  QByteArray platforms;
  if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) platforms += "wayland;";
  if (!qEnvironmentVariableIsEmpty("DISPLAY")) platforms += "xcb;";
  return platforms + "offscreen";
}

}  // namespace

Session::Session(Display display) {
  const bool chosen = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
  if (!chosen) qputenv("QT_QPA_PLATFORM", Platforms(display));
  m_Application = std::make_unique<QApplication>(m_Argc, m_Argv);
  if (!chosen && display == Display::Needed && !HasDisplay())
    Raise(static_cast<int>(ErrorNumber::InvalidCall), u"there is no display to show the form on");
  QApplication::setApplicationDisplayName(QStringLiteral("Cardwright"));
  ProvideFormScripts(app::Languages());
  m_Library = std::make_unique<qt::Library>();
}

Session::~Session() {
  if (m_Log) Module().connections.Close(m_Library->Vellum().TarvoHandle());
}

bool Session::HasDisplay() const {
  const QString platform = QApplication::platformName();
  return platform != u"offscreen" && platform != u"minimal";
}

void Session::OpenData(const QString& source) {
  const Ref<EmbeddedHost> host = EmbeddedHost::Open(qt::FromQString(source));
  host->onRefusal = [this](const Text& reason) { m_Refusals += qt::ToQString(reason); };
  m_Log = MakeRef<LoggedConnection>(host);
  host->SetHandle(m_Library->Connect(m_Log));
}

bool Session::HasFeature(const FeaturePlace& place, const Text& id) {
  m_Log->Execute(commands::SelectByValue(place, id));
  const bool found = Val(m_Log->Request(commands::SelectedNumber(place))) > 0;
  m_Log->Execute(commands::SelectNone(place));
  return found;
}

QStringList Session::TakeRefusals() { return std::exchange(m_Refusals, {}); }

}  // namespace cardwright::desktop
