// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>

#include "cardwright/platform/ScriptEngine.h"

namespace cardwright {

/// Decides when an engine polls its host (ScriptHost::ShouldStop): not during the first second of a call from
/// outside, then ten times a second. The engine polls where it can leave the script for a while, as in a call
/// to the host.
class HostPoll {
 public:
  /// Called when a call from outside begins. The first IsDue after it starts the clock.
  void Restart() noexcept { m_Next.reset(); }

  bool IsDue() noexcept {
    const Clock::time_point now = Clock::now();
    if (!m_Next) m_Next = now + kPatience;
    return now >= *m_Next;
  }

  /// Whether the host wants the running script to stop.
  bool Poll(ScriptHost& host) {
    const bool shouldStop = host.ShouldStop();
    m_Next = Clock::now() + kInterval;
    return shouldStop;
  }

 private:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::milliseconds kPatience{1000}, kInterval{100};

  std::optional<Clock::time_point> m_Next;
};

}  // namespace cardwright
