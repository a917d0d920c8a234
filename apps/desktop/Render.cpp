#include <QFileInfo>
#include <algorithm>
#include <memory>

#include "cardwright/qt/FormDesigner.h"
#include "cardwright/qt/FormInput.h"
#include "cardwright/qt/surface/QtHostWindow.h"
#include "desktop/Commands.h"
#include "desktop/Console.h"
#include "desktop/Options.h"
#include "desktop/Session.h"

namespace cardwright::desktop {

namespace {

QString Told(const QString& text) { return QStringLiteral("cardwright render: ") + text; }

/// The form as it is shown: to an end user, or with its grid to the author who draws it.
std::unique_ptr<qt::VisualControl> ReadForm(const QString& file, bool designed) {
  if (designed) {
    auto designer = std::make_unique<qt::FormDesigner>();
    return designer->ProjectRead(file) ? std::move(designer) : nullptr;
  }
  auto form = std::make_unique<qt::FormInput>();
  return form->ProjectRead(file) ? std::move(form) : nullptr;
}

}  // namespace

int RunRender(const QStringList& words) {
  Options options(
      QStringLiteral("render"), QStringLiteral("Makes a picture of a form as an end user meets it."),
      QStringLiteral("FORM"),
      {{"o", "FILE.png", "the picture to write"}, {"design", "", "as its author draws it, with the grid"}});
  if (const auto status = options.Parse(words, 1, 1)) return *status;
  const QString target = options.Value(QStringLiteral("o"));
  if (target.isEmpty()) return options.Refuse(QStringLiteral("-o FILE.png is missing"));
  const QString file = options.Operands().at(0);
  if (!QFileInfo(file).isFile()) {
    PrintError(Told(QStringLiteral("there is no form project %1").arg(file)));
    return kWrongUse;
  }
  const Session session(Display::Unused);
  const auto form = ReadForm(file, options.Has(QStringLiteral("design")));
  if (!form) {
    PrintError(Told(QStringLiteral("the form project %1 could not be read").arg(file)));
    return kFaultsFound;
  }
  if (std::max(form->width(), form->height()) > qt::kLargestWindow) {
    PrintError(Told(QStringLiteral("the form is %1 x %2 pixels; the largest picture has %3 x %3")
                        .arg(form->width())
                        .arg(form->height())
                        .arg(qt::kLargestWindow)));
    return kFaultsFound;
  }
  form->show();
  if (form->grab().save(target)) return kDone;
  PrintError(Told(QStringLiteral("%1 could not be written").arg(target)));
  return kFaultsFound;
}

}  // namespace cardwright::desktop
