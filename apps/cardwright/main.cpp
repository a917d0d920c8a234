#include <QApplication>

#include "automation/Errors.h"
#include "cardwright/Commands.h"
#include "cardwright/Console.h"
#include "qt/QtText.h"

namespace cardwright::app {
namespace {

struct Command {
  const char* name;
  const char* summary;
  int (*run)(const QStringList& words);
};

constexpr Command kCommands[] = {
    {"fill", "fill in a form for one feature", RunFill},
    {"check", "tell the faults of form projects", RunCheck},
    {"info", "show what a form project holds", RunInfo},
    {"render", "make a picture of a form", RunRender},
    {"orv", "send host commands to a data source", RunOrv},
};

QString Help() {
  QString text = QStringLiteral("Usage: cardwright COMMAND [options]\n\nCommands:\n");
  for (const Command& command : kCommands)
    text += QStringLiteral("  %1 %2\n")
                .arg(QString::fromLatin1(command.name), -8)
                .arg(QLatin1String(command.summary));
  return text +
         QStringLiteral(
             "\ncardwright COMMAND --help tells a command's options.\n"
             "Exit status: 0 done, 1 faults found or an error met, 2 wrong use, 3 the form was cancelled.");
}

int Run(const QStringList& words) {
  const QString first = words.value(0);
  if (first == u"--help" || first == u"-h") {
    PrintLine(Help());
    return kDone;
  }
  if (first == u"--version" || first == u"-v") {
    PrintLine(QStringLiteral("cardwright " CARDWRIGHT_VERSION));
    return kDone;
  }
  for (const Command& command : kCommands)
    if (first == QLatin1String(command.name)) return command.run(words.mid(1));
  if (words.isEmpty()) {
    PrintError(Help());
  } else {
    PrintError(QStringLiteral("cardwright: unknown command: %1\nTry: cardwright --help").arg(first));
  }
  return kWrongUse;
}

QStringList Words(int argc, char** argv) {
  QStringList words;
  for (int i = 1; i < argc; ++i) words += QString::fromLocal8Bit(argv[i]);
  return words;
}

}  // namespace
}  // namespace cardwright::app

int main(int argc, char** argv) {
  using namespace cardwright;
  try {
    return app::Run(app::Words(argc, argv));
  } catch (const Error& error) {
    app::PrintError(QStringLiteral("cardwright: ") + qt::ToQString(error.Description()));
    return app::kWrongUse;
  }
}
