// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>

#include "cardwright/platform/ScriptEngine.h"

namespace cardwright {

/// While it lives, Ctrl+C stops the engine's script; a second Ctrl+C ends the program. One at a time.
class InterruptSignal {
 public:
  explicit InterruptSignal(ScriptEngine& engine);
  ~InterruptSignal();
  InterruptSignal(const InterruptSignal&) = delete;
  InterruptSignal& operator=(const InterruptSignal&) = delete;

  /// Whether Ctrl+C was pressed since the latest object was made.
  static bool WasRaised() noexcept;

 private:
  struct sigaction m_Before {};
};

}  // namespace cardwright
