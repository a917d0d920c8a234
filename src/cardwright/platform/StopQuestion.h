#pragma once

#include <chrono>
#include <optional>

#include "cardwright/platform/ScriptEngine.h"

namespace cardwright {

/// When an engine asks its program whether the running script is to stop: not during the first second of a
/// call from outside, then some times a second. To be used where the script may be left for a while, as in a
/// call to the host.
class StopQuestion {
 public:
  /// A call from outside begins. The clock is first looked at when the question may be due.
  void Begin() noexcept { m_Next.reset(); }

  bool IsDue() noexcept {
    const Clock::time_point now = Clock::now();
    if (!m_Next) m_Next = now + kPatience;
    return now >= *m_Next;
  }

  bool Ask(ScriptHost& host) {
    const bool wantsStop = host.WantsStop();
    m_Next = Clock::now() + kInterval;
    return wantsStop;
  }

 private:
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::milliseconds kPatience{1000}, kInterval{100};

  std::optional<Clock::time_point> m_Next;
};

}  // namespace cardwright
