// SPDX-License-Identifier: MIT
#include "cardwright/automation/Errors.h"
#include "launcher/Console.h"
#include "launcher/DesktopModule.h"
#include "launcher/ScriptCommand.h"

namespace cardwright::app {
namespace {

using Words = std::span<const std::string>;

struct Command {
  std::string_view name;
  std::string_view summary;
  int (*run)(Words words);  ///< null if it is in the desktop module
};

constexpr Command kCommands[] = {
    {"design", "draw forms in the workbench, as without a command", nullptr},
    {"fill", "fill in a form for one feature", nullptr},
    {"check", "list the faults of form projects", nullptr},
    {"info", "show what a form project holds", nullptr},
    {"render", "make a picture of a form", nullptr},
    {"orv", "send host commands to a data source", nullptr},
    {"script", "run a script", RunScriptCommand},
};

std::string Help() {
  std::string text = "Usage: cardwright [COMMAND [options]]\n\nCommands:\n";
  for (const Command& command : kCommands) {
    std::string name(command.name);
    name.resize(9, ' ');
    text += "  " + name + std::string(command.summary) + "\n";
  }
  return text +
         "\ncardwright COMMAND --help lists a command's options.\n"
         "Exit status: 0 done, 1 faults found or an error met, 2 wrong use, 3 the form was cancelled.";
}

int Run(Words words) {
  if (words.empty()) return LoadDesktopModule().run("design", words);
  const std::string& first = words[0];
  if (first == "--help" || first == "-h") {
    PrintLine(Help());
    return kDone;
  }
  if (first == "--version" || first == "-v") {
    PrintLine("cardwright " CARDWRIGHT_VERSION);
    return kDone;
  }
  for (const Command& command : kCommands) {
    if (first != command.name) continue;
    const Words rest = words.subspan(1);
    return command.run ? command.run(rest) : LoadDesktopModule().run(first, rest);
  }
  PrintError("cardwright: unknown command: " + first + "\nTry: cardwright --help");
  return kWrongUse;
}

}  // namespace
}  // namespace cardwright::app

int main(int argc, char** argv) {
  using namespace cardwright;
  try {
    const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    return app::Run(words);
  } catch (const Error& error) {
    app::PrintError("cardwright: " + error.Description().ToUtf8());
    return app::kWrongUse;
  }
}
