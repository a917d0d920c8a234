#include "cardwright/jscript/spidermonkey/Watchdog.h"

#include <algorithm>

namespace cardwright::jscript {
namespace {

constexpr std::chrono::milliseconds kLook{20};
// It stays awake between the calls of a busy form, as waking it costs more than a call.
constexpr int kIdleLooks = 50;

}  // namespace

Watched::Watched(Nudge nudge, void* who, std::atomic<bool>& stop, Clock::time_point deadline)
    : m_Nudge(nudge), m_Who(who), m_Stop(stop), m_Deadline(deadline) {
  Watchdog::OfProcess().Add(*this);
}

Watched::~Watched() { Watchdog::OfProcess().Remove(*this); }

Watchdog& Watchdog::OfProcess() {
  static Watchdog watchdog;
  return watchdog;
}

Watchdog::Watchdog() : m_Thread([this] { Work(); }) {}

Watchdog::~Watchdog() {
  {
    const std::lock_guard lock(m_Mutex);
    m_Ends = true;
  }
  m_Wake.notify_one();
  m_Thread.join();
}

void Watchdog::Add(Watched& call) {
  const std::lock_guard lock(m_Mutex);
  m_Calls.push_back(&call);
  if (m_Sleeps) m_Wake.notify_one();
}

void Watchdog::Remove(Watched& call) noexcept {
  const std::lock_guard lock(m_Mutex);
  // Nearly always the last one.
  const auto found = std::find(m_Calls.rbegin(), m_Calls.rend(), &call);
  m_Calls.erase(std::next(found).base());
}

Watched::Clock::time_point Watchdog::NextLook(Watched::Clock::time_point now) const {
  auto next = now + kLook;
  for (const Watched* call : m_Calls)
    if (call->m_Deadline > now) next = std::min(next, call->m_Deadline);
  return next;
}

void Watchdog::Look(Watched::Clock::time_point now) {
  for (Watched* call : m_Calls) {
    if (now >= call->m_Deadline) call->m_Stop.store(true, std::memory_order_relaxed);
    call->m_Nudge(call->m_Who);
  }
  m_IdleLooks = m_Calls.empty() ? m_IdleLooks + 1 : 0;
}

void Watchdog::Work() {
  std::unique_lock lock(m_Mutex);
  while (!m_Ends) {
    if (m_Calls.empty() && m_IdleLooks >= kIdleLooks) {
      m_Sleeps = true;
      m_Wake.wait(lock, [this] { return m_Ends || !m_Calls.empty(); });
      m_Sleeps = false;
      m_IdleLooks = 0;
    } else {
      m_Wake.wait_until(lock, NextLook(Watched::Clock::now()));
    }
    Look(Watched::Clock::now());
  }
}

}  // namespace cardwright::jscript
