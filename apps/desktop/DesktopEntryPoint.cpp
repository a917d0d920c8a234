// SPDX-License-Identifier: MIT
#include <QtGlobal>

#include "desktop/DesktopCommands.h"
#include "desktop/QtScriptDesktop.h"
#include "launcher/DesktopModule.h"

namespace cardwright::desktop {
namespace {

struct Command {
  const char* name;
  int (*run)(std::span<const std::string> words);
};

constexpr Command kCommands[] = {
    {"fill", RunFill},     {"check", RunCheck}, {"info", RunInfo},
    {"render", RunRender}, {"orv", RunOrv},     {"design", RunDesign},
};

int Run(const std::string& command, std::span<const std::string> words) {
  for (const Command& known : kCommands)
    if (command == known.name) return known.run(words);
  qFatal("the desktop module has no command %s", command.c_str());
}

std::unique_ptr<ScriptDesktop> Start(app::ScriptDisplay display, ScriptEnvironment& environment) {
  return std::make_unique<QtScriptDesktop>(display, environment);
}

}  // namespace
}  // namespace cardwright::desktop

extern "C" __attribute__((visibility("default")))
const cardwright::app::DesktopModule cardwrightDesktopModule;
const cardwright::app::DesktopModule cardwrightDesktopModule = {cardwright::desktop::Run,
                                                                cardwright::desktop::Start};
