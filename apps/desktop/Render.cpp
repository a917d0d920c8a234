#include <QFileInfo>

#include "desktop/Commands.h"
#include "desktop/Console.h"
#include "desktop/FormWindow.h"
#include "desktop/Options.h"
#include "desktop/Session.h"

namespace cardwright::desktop {

int RunRender(const QStringList& words) {
  Options options(QStringLiteral("render"),
                  QStringLiteral("Makes a picture of a form as an end user meets it."),
                  QStringLiteral("FORM"), {{"o", "FILE.png", "the picture to write"}});
  if (const auto status = options.Parse(words, 1, 1)) return *status;
  const QString target = options.Value(QStringLiteral("o"));
  if (target.isEmpty()) return options.Refuse(QStringLiteral("-o FILE.png is missing"));
  const QString file = options.Operands().at(0);
  if (!QFileInfo(file).isFile()) {
    PrintError(QStringLiteral("cardwright render: there is no form project %1").arg(file));
    return kWrongUse;
  }
  Session session(Display::Unused);
  FormWindow window(session);
  if (!window.Form().ProjectRead(file)) {
    PrintError(QStringLiteral("cardwright render: the form project %1 could not be read").arg(file));
    return kFaultsFound;
  }
  window.show();
  if (window.Form().grab().save(target)) return kDone;
  PrintError(QStringLiteral("cardwright render: %1 could not be written").arg(target));
  return kFaultsFound;
}

}  // namespace cardwright::desktop
