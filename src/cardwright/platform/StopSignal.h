// SPDX-License-Identifier: MIT
#pragma once

namespace cardwright {

/// Polled by long work of the library: whether the script that it works for should stop. The work may then
/// give up with any error, as the script never gets to see it.
class StopSignal {
 public:
  /// Checks the script's deadline too. False where no script runs on this thread.
  static bool IsRaised() noexcept { return t_Current && t_Current->ShouldStop(); }

  /// Makes a signal the thread's as long as it lives.
  class Scope {
   public:
    explicit Scope(StopSignal& signal) noexcept : m_Outer(t_Current) { t_Current = &signal; }
    ~Scope() { t_Current = m_Outer; }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

   private:
    StopSignal* m_Outer;
  };

 protected:
  ~StopSignal() = default;
  virtual bool ShouldStop() noexcept = 0;

 private:
  static constinit thread_local StopSignal* t_Current;
};

}  // namespace cardwright
