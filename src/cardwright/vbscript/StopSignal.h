#pragma once

namespace cardwright::vbscript {

/// What long work of the library asks now and then: whether the script that it works for is to stop. It may
/// then give up with any error, as nothing in the script gets to see it.
class StopSignal {
 public:
  /// Looks at the clock too. False where no script runs on this thread.
  static bool IsRaised() noexcept { return t_Current && t_Current->LookForStop(); }

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
  virtual bool LookForStop() noexcept = 0;

 private:
  static constinit thread_local StopSignal* t_Current;
};

}  // namespace cardwright::vbscript
