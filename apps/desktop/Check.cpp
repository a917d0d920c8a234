#include <QFileInfo>

#include "cardwright/qt/values/QtText.h"
#include "desktop/Commands.h"
#include "desktop/Console.h"
#include "desktop/Options.h"
#include "desktop/ProjectFaults.h"

namespace cardwright::desktop {

int RunCheck(const QStringList& words) {
  Options options(QStringLiteral("check"),
                  QStringLiteral("Tells the faults of form projects, one a line. Status 1 if there are any."),
                  QStringLiteral("FORM…"), {{"data", "SOURCE", "a data source that the forms must fit"}});
  if (const auto status = options.Parse(words, 1, 1'000'000)) return *status;
  Ref<EmbeddedHost> data;
  if (options.Has(QStringLiteral("data")))
    data = EmbeddedHost::Open(qt::FromQString(options.Value(QStringLiteral("data"))),
                              EmbeddedHost::Access::ReadOnly);
  bool isClean = true;
  for (const QString& file : options.Operands()) {
    if (!QFileInfo(file).isFile()) {
      PrintError(QStringLiteral("cardwright check: there is no form project %1").arg(file));
      return kWrongUse;
    }
    for (const Fault& fault : FindFaults(file, data.get())) {
      PrintLine(QStringLiteral("%1:%2: %3").arg(file, fault.section, fault.text));
      isClean = false;
    }
  }
  return isClean ? kDone : kFaultsFound;
}

}  // namespace cardwright::desktop
