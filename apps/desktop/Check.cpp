// SPDX-License-Identifier: MIT
#include <QFileInfo>

#include "desktop/DesktopCommands.h"
#include "desktop/ProjectFaults.h"
#include "launcher/CommandLine.h"

namespace cardwright::desktop {

int RunCheck(std::span<const std::string> words) {
  app::CommandLine line(
      {.name = "check",
       .summary = "Tells the faults of form projects, one a line. Status 1 if there are any.",
       .operands = "FORM…",
       .leastOperands = 1,
       .options = {{"--data <SOURCE>", "a data source that the forms must fit"}}});
  if (const auto status = line.Parse(words)) return *status;
  Ref<EmbeddedHost> data;
  if (line.Has("data"))
    data = EmbeddedHost::Open(Text::FromUtf8(line.Value("data")), EmbeddedHost::Access::ReadOnly);
  bool isClean = true;
  for (const std::string& operand : line.Operands()) {
    const QString file = QString::fromStdString(operand);
    if (!QFileInfo(file).isFile()) return line.Fail("there is no form project " + operand, app::kWrongUse);
    for (const Fault& fault : FindFaults(file, data.get())) {
      app::PrintLine(QStringLiteral("%1:%2: %3").arg(file, fault.section, fault.text).toStdString());
      isClean = false;
    }
  }
  return isClean ? app::kDone : app::kFailed;
}

}  // namespace cardwright::desktop
