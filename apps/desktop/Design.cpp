#include "cardwright/qt/desktop/TerminalBreak.h"
#include "desktop/Commands.h"
#include "desktop/Console.h"
#include "desktop/Options.h"
#include "desktop/Session.h"
#include "workbench/Workbench.h"

namespace cardwright::desktop {

int RunDesign(const QStringList& words) {
  Options options(QStringLiteral("design"), QStringLiteral("Opens the workbench, in which forms are drawn."),
                  QStringLiteral("[FORM]"),
                  {{"data", "SOURCE", "a data source to bind the form to, as a GeoPackage's path"}});
  if (const auto status = options.Parse(words, 0, 1)) return *status;
  Session session(Display::Needed);
  const qt::TerminalBreak terminal;
  workbench::Workbench window(session.Data());
  window.show();
  const QStringList operands = options.Operands();
  if (operands.isEmpty()) {
    window.OfferLeftWork();
  } else if (!window.OpenProject(operands.first())) {
    return kFaultsFound;
  }
  if (options.Has(QStringLiteral("data"))) window.OpenData(options.Value(QStringLiteral("data")));
  return QApplication::exec();
}

}  // namespace cardwright::desktop
