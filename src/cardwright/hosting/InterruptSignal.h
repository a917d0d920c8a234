#pragma once

#include <csignal>

#include "cardwright/platform/ScriptEngine.h"

namespace cardwright {

/// While it lives, Ctrl+C stops what the engine runs; a second Ctrl+C ends the program. One at a time.
class InterruptSignal {
 public:
  explicit InterruptSignal(ScriptEngine& engine);
  ~InterruptSignal();
  InterruptSignal(const InterruptSignal&) = delete;
  InterruptSignal& operator=(const InterruptSignal&) = delete;

  /// Whether Ctrl+C came since the latest one was made.
  static bool WasRaised() noexcept;

 private:
  struct sigaction m_Before {};
};

}  // namespace cardwright
