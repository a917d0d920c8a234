// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace cardwright::jscript {

/// A call into scripts under the watchdog's eyes. The watchdog sets the stop flag at the deadline, and
/// interrupts the script many times a second so that it checks its flags and its memory.
class WatchedCall {
 public:
  using Clock = std::chrono::steady_clock;
  using Interrupt = void (*)(void* context);

  /// `context` and `stop` must outlive the object. The watchdog's thread calls `interrupt` with the context.
  WatchedCall(Interrupt interrupt, void* context, std::atomic<bool>& stop, Clock::time_point deadline);
  ~WatchedCall();
  WatchedCall(const WatchedCall&) = delete;
  WatchedCall& operator=(const WatchedCall&) = delete;

 private:
  friend class Watchdog;
  Interrupt m_Interrupt;
  void* m_Context;
  std::atomic<bool>& m_Stop;
  Clock::time_point m_Deadline;
};

/// One thread for all engines of the process. It sleeps while no script runs, and touches nothing but flags.
class Watchdog {
 public:
  static Watchdog& OfProcess();
  ~Watchdog();

  void Add(WatchedCall& call);
  void Remove(WatchedCall& call) noexcept;

 private:
  Watchdog();
  void Work();
  void CheckCalls(WatchedCall::Clock::time_point now);
  WatchedCall::Clock::time_point NextCheck(WatchedCall::Clock::time_point now) const;

  std::mutex m_Mutex;
  std::condition_variable m_Wake;
  std::vector<WatchedCall*> m_Calls;
  int m_IdleChecks = 0;
  bool m_IsAsleep = false, m_IsEnding = false;
  std::thread m_Thread;
};

}  // namespace cardwright::jscript
