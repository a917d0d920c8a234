#include <unistd.h>

#include <iostream>
#include <string>

#include "cardwright/automation/Errors.h"
#include "cardwright/orv/EmbeddedHost.h"
#include "cardwright/qt/values/QtText.h"
#include "desktop/Commands.h"
#include "desktop/Console.h"
#include "desktop/Options.h"

namespace cardwright::desktop {
namespace {

void Send(EmbeddedHost& host, const QString& command) {
  const Text reply = host.Execute(qt::ViewOf(command));
  if (host.LastError().IsEmpty()) PrintLine(qt::ToQString(reply));
}

void SendLines(EmbeddedHost& host) {
  const bool isPrompt = isatty(STDIN_FILENO) != 0;
  std::string line;
  while ((isPrompt ? std::cout << "orv> " << std::flush : std::cout), std::getline(std::cin, line)) {
    const QString command = QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size())).trimmed();
    if (!command.isEmpty()) Send(host, command);
  }
  if (isPrompt) std::cout << std::endl;  // the shell's own prompt begins a line
}

}  // namespace

int RunOrv(const QStringList& words) {
  Options options(
      QStringLiteral("orv"),
      QStringLiteral("Sends host commands to a data source and prints the replies; without a COMMAND they\n"
                     "are read from standard input, a line each. Status 1 where one was refused."),
      QStringLiteral("[COMMAND…]"), {{"data", "SOURCE", "the data source, as a GeoPackage's path"}});
  if (const auto status = options.Parse(words, 0, 1'000'000)) return *status;
  if (!options.Has(QStringLiteral("data"))) return options.Refuse(QStringLiteral("--data is missing"));
  const Ref<EmbeddedHost> host = EmbeddedHost::Open(qt::FromQString(options.Value(QStringLiteral("data"))));
  bool allDone = true;
  host->onRefusal = [&](const Text& reason) {
    PrintError(QStringLiteral("refused: ") + qt::ToQString(reason));
    allDone = false;
  };
  if (options.Operands().isEmpty()) SendLines(*host);
  for (const QString& command : options.Operands()) Send(*host, command);
  host->Execute(u"APPLICATION_REDRAW");  // stores the values that still wait for their feature's other ones
  return allDone ? kDone : kFaultsFound;
}

}  // namespace cardwright::desktop
