#include <QFileInfo>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/desktop/TerminalBreak.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/runtime/AttributeBinding.h"
#include "desktop/Commands.h"
#include "desktop/Console.h"
#include "desktop/FormWindow.h"
#include "desktop/Options.h"
#include "desktop/Session.h"

namespace cardwright::desktop {
namespace {

// The project names its theme; on the command line the person's choice counts.
void ChooseTheme(qt::FormInput& form, const QString& theme) {
  if (IControl* root = FindControl(form.Object()->Controls(), u"Form"))
    root->SetPropertyValue(u"ThemeName", qt::FromQString(theme));
}

bool ThemeExists(const DataSource& data, const QString& theme) {
  return Val(data.Log().Request(Text(u"THEME_NUMBER |") + qt::ViewOf(theme) + u"|")) > 0;
}

}  // namespace

int RunFill(const QStringList& words) {
  Options options(
      QStringLiteral("fill"),
      QStringLiteral("Fills in a form for one feature. Status 0 after OK, 3 after Cancel."),
      QStringLiteral("FORM"),
      {{"data", "SOURCE", "the data source, as a GeoPackage's path"},
       {"theme", "NAME", "the theme that the feature is in"},
       {"id", "N", "the feature's identifier"},
       {"new", "", "the feature is new: its attributes are not loaded"},
       {"debug", "", "only show what would be stored, in a pane below the form, which stays open after OK"}});
  if (const auto status = options.Parse(words, 1, 1)) return *status;
  for (const char* needed : {"data", "theme", "id"})
    if (!options.Has(QLatin1String(needed)))
      return options.Refuse(QStringLiteral("--%1 is missing").arg(QLatin1String(needed)));

  const QString file = options.Operands().at(0);
  if (!QFileInfo(file).isFile()) {
    PrintError(QStringLiteral("cardwright fill: there is no form project %1").arg(file));
    return kWrongUse;
  }
  Session session(Display::Needed);
  const qt::TerminalBreak terminal;
  DataSource& data = session.Data();
  data.Open(options.Value(QStringLiteral("data")));
  const QString theme = options.Value(QStringLiteral("theme"));
  if (!ThemeExists(data, theme)) {
    PrintError(QStringLiteral("cardwright fill: the data source has no theme %1").arg(theme));
    return kWrongUse;
  }

  FormWindow window(data);
  if (options.Has(QStringLiteral("debug"))) {
    window.ShowDebugOutput();
    window.Form().SetDebugMode(true);
  }
  if (!window.Form().ProjectRead(file)) {
    PrintError(QStringLiteral("cardwright fill: the form project %1 could not be read").arg(file));
    return kFaultsFound;
  }
  ChooseTheme(window.Form(), theme);
  const QString id = options.Value(QStringLiteral("id"));
  if (!data.HasFeature(PlaceOf(*window.Form().Object()), qt::FromQString(id))) {
    PrintError(QStringLiteral("cardwright fill: the theme %1 has no feature %2 of the form's feature type")
                   .arg(theme, id));
    return kWrongUse;
  }
  window.Form().SetNewFeature(options.Has(QStringLiteral("new")));
  window.Form().SetFeatureID(id);
  window.show();
  QApplication::exec();
  return window.IsAccepted() ? kDone : kCancelled;
}

}  // namespace cardwright::desktop
