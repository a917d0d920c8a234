// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace cardwright::testing {

/// The command line run next to the test, as in a terminal with Ctrl+C. It is killed at the end.
class RunningProgram {
 public:
  explicit RunningProgram(std::vector<std::string> words);
  ~RunningProgram();
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

  /// Waits until the program takes Ctrl+C into its own hands; false where it does not come to that.
  bool WaitUntilItHandlesCtrlC() const;
  void PressCtrlC() const;
  /// Waits until it does not compute for half a second; false where it does not come to that.
  bool WaitUntilItRests() const;
  /// The signal that ended it, 0 for an end by itself; none where it has not ended within the time.
  std::optional<int> WaitForEnd(std::chrono::seconds time);

 private:
  /// In ticks of the system's.
  long ProcessorTime() const;
  std::string Proc(const char* file) const;

  int m_Child = -1;
  bool m_HasEnded = false;
};

}  // namespace cardwright::testing
