// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/Watchdog.h"

#include <algorithm>

namespace cardwright::jscript {
namespace {

constexpr std::chrono::milliseconds kCheckInterval{20};
// It stays awake between the calls of a busy form, because waking it costs more than a call.
constexpr int kIdleChecks = 50;

}  // namespace

WatchedCall::WatchedCall(Interrupt interrupt, void* context, std::atomic<bool>& stop,
                         Clock::time_point deadline)
    : m_Interrupt(interrupt), m_Context(context), m_Stop(stop), m_Deadline(deadline) {
  Watchdog::OfProcess().Add(*this);
}

WatchedCall::~WatchedCall() { Watchdog::OfProcess().Remove(*this); }

Watchdog& Watchdog::OfProcess() {
  static Watchdog watchdog;
  return watchdog;
}

Watchdog::Watchdog() : m_Thread([this] { Work(); }) {}

Watchdog::~Watchdog() {
  {
    const std::lock_guard lock(m_Mutex);
    m_IsEnding = true;
  }
  m_Wake.notify_one();
  m_Thread.join();
}

void Watchdog::Add(WatchedCall& call) {
  const std::lock_guard lock(m_Mutex);
  m_Calls.push_back(&call);
  if (m_IsAsleep) m_Wake.notify_one();
}

void Watchdog::Remove(WatchedCall& call) noexcept {
  const std::lock_guard lock(m_Mutex);
  // Calls nest, so it is nearly always the last one.
  const auto found = std::find(m_Calls.rbegin(), m_Calls.rend(), &call);
  m_Calls.erase(std::next(found).base());
}

WatchedCall::Clock::time_point Watchdog::NextCheck(WatchedCall::Clock::time_point now) const {
  auto next = now + kCheckInterval;
  for (const WatchedCall* call : m_Calls)
    if (call->m_Deadline > now) next = std::min(next, call->m_Deadline);
  return next;
}

void Watchdog::CheckCalls(WatchedCall::Clock::time_point now) {
  for (WatchedCall* call : m_Calls) {
    if (now >= call->m_Deadline) call->m_Stop.store(true, std::memory_order_relaxed);
    call->m_Interrupt(call->m_Context);
  }
  m_IdleChecks = m_Calls.empty() ? m_IdleChecks + 1 : 0;
}

void Watchdog::Work() {
  std::unique_lock lock(m_Mutex);
  while (!m_IsEnding) {
    if (m_Calls.empty() && m_IdleChecks >= kIdleChecks) {
      m_IsAsleep = true;
      m_Wake.wait(lock, [this] { return m_IsEnding || !m_Calls.empty(); });
      m_IsAsleep = false;
      m_IdleChecks = 0;
    } else {
      m_Wake.wait_until(lock, NextCheck(WatchedCall::Clock::now()));
    }
    CheckCalls(WatchedCall::Clock::now());
  }
}

}  // namespace cardwright::jscript
