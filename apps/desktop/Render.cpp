// SPDX-License-Identifier: MIT
#include <QFileInfo>
#include <algorithm>
#include <memory>

#include "cardwright/qt/FormDesigner.h"
#include "cardwright/qt/FormInput.h"
#include "cardwright/qt/surface/QtHostWindow.h"
#include "desktop/DesktopCommands.h"
#include "desktop/DesktopSession.h"
#include "launcher/CommandLine.h"

namespace cardwright::desktop {
namespace {

/// The form as an end user sees it, or with the grid as its author sees it.
std::unique_ptr<qt::VisualControl> ReadForm(const QString& file, bool designed) {
  if (designed) {
    auto designer = std::make_unique<qt::FormDesigner>();
    return designer->ProjectRead(file) ? std::move(designer) : nullptr;
  }
  auto form = std::make_unique<qt::FormInput>();
  return form->ProjectRead(file) ? std::move(form) : nullptr;
}

}  // namespace

int RunRender(std::span<const std::string> words) {
  app::CommandLine line({.name = "render",
                         .summary = "Makes a picture of a form as an end user meets it.",
                         .operands = "FORM",
                         .leastOperands = 1,
                         .mostOperands = 1,
                         .options = {{"-o <FILE.png>", "the picture to write"},
                                     {"--design", "as its author draws it, with the grid"}}});
  if (const auto status = line.Parse(words)) return *status;
  const std::string target = line.Value("o");
  if (target.empty()) return line.Refuse("-o FILE.png is missing");
  const std::string& file = line.Operands().front();
  const QString path = QString::fromStdString(file);
  if (!QFileInfo(path).isFile()) return line.Fail("there is no form project " + file, app::kWrongUse);
  const DesktopSession session(Display::Unused);
  const auto form = ReadForm(path, line.Has("design"));
  if (!form) return line.Fail("the form project " + file + " could not be read");
  if (std::max(form->width(), form->height()) > qt::kLargestWindow)
    return line.Fail(QStringLiteral("the form is %1 x %2 pixels; the largest picture has %3 x %3")
                         .arg(form->width())
                         .arg(form->height())
                         .arg(qt::kLargestWindow)
                         .toStdString());
  form->show();
  if (form->grab().save(QString::fromStdString(target))) return app::kDone;
  return line.Fail(target + " could not be written");
}

}  // namespace cardwright::desktop
