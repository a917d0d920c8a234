// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "cardwright/hosting/ClassRegistry.h"
#include "cardwright/platform/ScriptLanguages.h"

namespace cardwright {

/// The toolkit as a script run sees it, loaded when the script first creates a class that needs it.
class ScriptDesktop {
 public:
  virtual ~ScriptDesktop() = default;
  /// Processes window events for that time.
  virtual void ProcessEvents(std::chrono::milliseconds time) = 0;
  /// Whether a user can see the windows.
  virtual bool HasDisplay() const = 0;
};

/// What a script run is given; outlives it.
struct ScriptEnvironment {
  ScriptLanguages languages;
  ClassRegistry classes;
  std::unique_ptr<ScriptDesktop> desktop = nullptr;  ///< null until a class or a message box needs it
  bool hasDisplay = false;                           ///< whether a message box loads the desktop
  /// Writes a line to the script's output: the text of a message box that nobody can see.
  std::function<void(const Text& line)> writeLine = nullptr;
  Text program = {};  ///< path of the program that runs the script
};

}  // namespace cardwright
