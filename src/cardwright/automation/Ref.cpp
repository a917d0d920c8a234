#include "cardwright/automation/Ref.h"

#include <vector>

namespace cardwright {

namespace {

// Objects within objects that are unmade by recursion; those deeper wait for their turn.
constexpr int kDeepest = 64;

struct Unmaking {
  int depth = 0;
  std::vector<const RefCounted*> waiting;
};
thread_local Unmaking t_Unmaking;

}  // namespace

void RefCounted::Unmake() const noexcept {
  Unmaking& unmaking = t_Unmaking;
  if (unmaking.depth == kDeepest) {
    unmaking.waiting.push_back(this);
    return;
  }
  ++unmaking.depth;
  OnLastRelease();
  while (unmaking.depth == 1 && !unmaking.waiting.empty()) {
    const RefCounted* next = unmaking.waiting.back();
    unmaking.waiting.pop_back();
    next->OnLastRelease();
  }
  --unmaking.depth;
}

}  // namespace cardwright
