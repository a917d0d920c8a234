#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "cardwright/hosting/ClassRegistry.h"
#include "cardwright/platform/ScriptLanguages.h"

namespace cardwright {

/// What a script run asks of the toolkit, once a class that needs it was asked for.
class ScriptDesktop {
 public:
  virtual ~ScriptDesktop() = default;
  /// Serves the events of windows for that time.
  virtual void Serve(std::chrono::milliseconds time) = 0;
  /// Whether a person sees the windows.
  virtual bool HasDisplay() const = 0;
};

/// What surrounds a script run and outlives it.
struct ScriptSurroundings {
  ScriptLanguages languages;
  ClassRegistry classes;
  std::unique_ptr<ScriptDesktop> desktop = nullptr;  ///< null until a class or a message box has needed it
  bool hasDisplay = false;                           ///< whether message boxes are worth loading the desktop
  /// Writes a line where the script's output goes: what a box says that nobody sees.
  std::function<void(const Text& line)> say = nullptr;
  Text program = {};  ///< path of the program that runs the script
};

}  // namespace cardwright
