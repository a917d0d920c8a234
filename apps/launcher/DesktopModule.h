#pragma once

#include <memory>
#include <span>
#include <string>

#include "cardwright/hosting/ScriptDesktop.h"

namespace cardwright::app {

/// Whether a script is to show its windows to a person.
enum class ScriptDisplay { IfThere, Required };

/// What the desktop module offers the program. It is built with it and never used with another one.
struct DesktopModule {
  /// Runs one of the commands that need the toolkit or the data library; gives the exit status.
  int (*run)(const std::string& command, std::span<const std::string> words);
  /// Starts the toolkit for a script and adds the classes that need it. The environment outlives it.
  std::unique_ptr<ScriptDesktop> (*startForScript)(ScriptDisplay display, ScriptEnvironment& environment);
};

/// Loads the module at the first call: its symbol `cardwrightDesktopModule`. Error 48 with the reason where
/// it cannot be loaded.
const DesktopModule& LoadDesktopModule();

}  // namespace cardwright::app
