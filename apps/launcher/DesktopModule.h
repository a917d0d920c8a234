// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <span>
#include <string>

#include "cardwright/hosting/ScriptDesktop.h"

namespace cardwright::app {

/// Whether a script needs a display for its windows.
enum class ScriptDisplay { IfThere, Required };

/// The interface of the desktop module. Program and module are always of the same build.
struct DesktopModule {
  /// Runs one of the commands that need the toolkit or the data library; returns the exit status.
  int (*run)(const std::string& command, std::span<const std::string> words);
  /// Starts the toolkit for a script and adds the classes that need it. The environment outlives it.
  std::unique_ptr<ScriptDesktop> (*startForScript)(ScriptDisplay display, ScriptEnvironment& environment);
};

/// Loads the module at the first call. Error 48 with the reason if it cannot be loaded.
const DesktopModule& LoadDesktopModule();

}  // namespace cardwright::app
