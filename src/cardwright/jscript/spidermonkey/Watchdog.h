#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace cardwright::jscript {

/// A call that a script may not get to the end of: the watchdog raises the flag at the deadline, and nudges
/// the running thread several times a second so that it looks at its flags and at its memory.
class Watched {
 public:
  using Clock = std::chrono::steady_clock;
  using Nudge = void (*)(void* who);

  /// `who` and `stop` must outlive the object. Nudge comes from another thread.
  Watched(Nudge nudge, void* who, std::atomic<bool>& stop, Clock::time_point deadline);
  ~Watched();
  Watched(const Watched&) = delete;
  Watched& operator=(const Watched&) = delete;

 private:
  friend class Watchdog;
  Nudge m_Nudge;
  void* m_Who;
  std::atomic<bool>& m_Stop;
  Clock::time_point m_Deadline;
};

/// One thread for all engines of the process. It sleeps while no script runs.
class Watchdog {
 public:
  static Watchdog& OfProcess();
  ~Watchdog();

  void Add(Watched& call);
  void Remove(Watched& call) noexcept;

 private:
  Watchdog();
  void Work();
  void Look(Watched::Clock::time_point now);
  Watched::Clock::time_point NextLook(Watched::Clock::time_point now) const;

  std::mutex m_Mutex;
  std::condition_variable m_Wake;
  std::vector<Watched*> m_Calls;
  int m_IdleLooks = 0;
  bool m_Sleeps = false, m_Ends = false;
  std::thread m_Thread;
};

}  // namespace cardwright::jscript
