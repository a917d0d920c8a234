// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// How a program that ran a script ends, as a shell sees it.
namespace ExitStatus {
inline constexpr int kDone = 0, kFailed = 1, kUsage = 2, kInterrupted = 130;
}  // namespace ExitStatus

/// What to do with a script file.
struct ScriptJob {
  enum class Task {
    Run,
    Compile,
    Disassemble,  ///< writes the compiled form to standard output
  };

  Text file;                    ///< as the user named it, for messages
  std::vector<Text> arguments;  ///< for the script
  Task task = Task::Run;
  bool traces = false;    ///< writes each statement to standard error before it runs
  bool profiles = false;  ///< writes the time of each line to standard error at the end
};

}  // namespace cardwright
