// SPDX-License-Identifier: MIT
#include "cardwright/hosting/InterruptSignal.h"

#include <atomic>

namespace cardwright {
namespace {

std::atomic<ScriptEngine*> s_Engine = nullptr;
std::atomic<bool> s_Raised = false;
static_assert(std::atomic<ScriptEngine*>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);

void OnSignal(int) {
  s_Raised = true;
  if (ScriptEngine* engine = s_Engine) engine->Interrupt();
}

}  // namespace

InterruptSignal::InterruptSignal(ScriptEngine& engine) {
  s_Raised = false;
  s_Engine = &engine;
  struct sigaction action {};
  action.sa_handler = OnSignal;
  // The first signal restores the default, so that a second one always ends the program. Without SA_RESTART a
  // read that waits for input returns.
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  sigaction(SIGINT, &action, &m_Before);
}

InterruptSignal::~InterruptSignal() {
  sigaction(SIGINT, &m_Before, nullptr);
  s_Engine = nullptr;
}

bool InterruptSignal::WasRaised() noexcept { return s_Raised; }

}  // namespace cardwright
