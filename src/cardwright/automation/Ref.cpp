// SPDX-License-Identifier: MIT
#include "cardwright/automation/Ref.h"

#include <vector>

namespace cardwright {

namespace {

// An object may hold the last reference to another one, and so on. Up to this depth they are destroyed by
// recursion; deeper ones are queued, so that a chain of millions does not overflow the stack.
constexpr int kMaxRecursion = 64;

struct Destruction {
  int depth = 0;
  std::vector<const RefCounted*> queue;
};
thread_local Destruction t_Destruction;

}  // namespace

void RefCounted::Destroy() const noexcept {
  Destruction& destruction = t_Destruction;
  if (destruction.depth == kMaxRecursion) {
    destruction.queue.push_back(this);
    return;
  }
  ++destruction.depth;
  OnLastRelease();
  while (destruction.depth == 1 && !destruction.queue.empty()) {
    const RefCounted* next = destruction.queue.back();
    destruction.queue.pop_back();
    next->OnLastRelease();
  }
  --destruction.depth;
}

}  // namespace cardwright
