// SPDX-License-Identifier: MIT
#include "cardwright/qt/desktop/TerminalBreak.h"
#include "desktop/DesktopCommands.h"
#include "desktop/DesktopSession.h"
#include "launcher/CommandLine.h"
#include "launcher/Languages.h"
#include "workbench/Workbench.h"
#include "workbench/panes/ScriptPane.h"

namespace cardwright::desktop {

int RunDesign(std::span<const std::string> words) {
  app::CommandLine line(
      {.name = "design",
       .summary = "Opens the workbench, in which forms are drawn.",
       .operands = "[FORM]",
       .mostOperands = 1,
       .options = {{"--data <SOURCE>", "a data source to bind the form to, as a GeoPackage's path"}}});
  if (const auto status = line.Parse(words)) return *status;
  DesktopSession session(Display::Needed);
  const qt::TerminalBreak terminal;
  workbench::Workbench window(session.Data());
  window.Script().CheckWith(app::Languages());
  window.show();
  if (line.Operands().empty()) {
    window.OfferLeftWork();
  } else if (!window.OpenProject(QString::fromStdString(line.Operands().front()))) {
    return app::kFailed;
  }
  if (line.Has("data")) window.OpenData(QString::fromStdString(line.Value("data")));
  return QApplication::exec();
}

}  // namespace cardwright::desktop
