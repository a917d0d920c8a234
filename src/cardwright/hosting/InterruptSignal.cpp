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
  // The default comes back with the first signal, so that nothing can hold the program; and a read that waits
  // for input is not begun again.
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  sigaction(SIGINT, &action, &m_Before);
}

InterruptSignal::~InterruptSignal() {
  sigaction(SIGINT, &m_Before, nullptr);
  s_Engine = nullptr;
}

bool InterruptSignal::WasRaised() noexcept { return s_Raised; }

}  // namespace cardwright
