// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <iostream>
#include <string>

#include "cardwright/orv/EmbeddedHost.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/shared/OrvClient.h"
#include "desktop/DesktopCommands.h"
#include "launcher/CommandLine.h"

namespace cardwright::desktop {
namespace {

void Send(EmbeddedHost& host, const Text& command) {
  const Text reply = host.Execute(command);
  if (host.LastError().IsEmpty()) app::PrintLine(reply.ToUtf8());
}

void SendLines(EmbeddedHost& host) {
  const bool isPrompt = isatty(STDIN_FILENO) != 0;
  std::string line;
  while ((isPrompt ? std::cout << "orv> " << std::flush : std::cout), std::getline(std::cin, line)) {
    const QString command = QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size())).trimmed();
    if (!command.isEmpty()) Send(host, qt::FromQString(command));
  }
  if (isPrompt) std::cout << std::endl;  // so that the shell's prompt starts on a new line
}

}  // namespace

int RunOrv(std::span<const std::string> words) {
  app::CommandLine line(
      {.name = "orv",
       .summary = "Sends host commands to a data source and prints the replies; without a COMMAND they\n"
                  "are read from standard input, a line each. Status 1 where one was refused.",
       .operands = "[COMMAND…]",
       .options = {{"--data <SOURCE>", "the data source, as a GeoPackage's path"}}});
  if (const auto status = line.Parse(words)) return *status;
  if (!line.Has("data")) return line.Refuse("--data is missing");
  const Ref<EmbeddedHost> host = EmbeddedHost::Open(Text::FromUtf8(line.Value("data")));
  bool allDone = true;
  host->onError = [&](const Text& reason) {
    app::PrintError("refused: " + reason.ToUtf8());
    allDone = false;
  };
  if (line.Operands().empty()) SendLines(*host);
  for (const std::string& command : line.Operands()) Send(*host, Text::FromUtf8(command));
  OrvClient(host).Redraw();  // stores pending values
  return allDone ? app::kDone : app::kFailed;
}

}  // namespace cardwright::desktop
