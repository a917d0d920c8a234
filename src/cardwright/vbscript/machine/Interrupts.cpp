// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/Machine.h"

namespace cardwright::vbscript {

// How a script is stopped. Interrupt sets Order::Stop, from any thread: because of a signal, the deadline or
// the host's wish. The interpreter reads the order at every jump back and every call of a procedure, which is
// cheap; every few thousand of them it looks at the clock too. Library functions that work long check the
// order themselves (StopSignal.h), but only the interpreter, between two steps, may poll the host.

void Machine::CheckDeadline() noexcept {
  if (m_Deadline != kNoDeadline && std::chrono::steady_clock::now() >= m_Deadline) Interrupt();
}

// For work that cannot be interrupted by calls: where the host should be polled, the interpreter does it
// next.
bool Machine::ShouldStop() noexcept {
  CheckDeadline();
  Order expected = Order::None;
  if (m_HostPoll.IsDue()) m_Order.compare_exchange_strong(expected, Order::Poll, std::memory_order_relaxed);
  return IsStopping();
}

void Machine::CheckStop() {
  CheckDeadline();
  if (IsStopping()) throw Interrupted{};
}

// Between two steps of the script: the host that is polled may call the script.
void Machine::PollInterrupts() {
  Order expected = Order::Poll;
  m_Order.compare_exchange_strong(expected, Order::None, std::memory_order_relaxed);
  CheckStop();
  if (m_HostPoll.IsDue() && m_HostPoll.Poll(Host())) Interrupt();
  ThrowIfStopping();
}

}  // namespace cardwright::vbscript
