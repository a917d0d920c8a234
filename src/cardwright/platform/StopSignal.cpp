// SPDX-License-Identifier: MIT
#include "cardwright/platform/StopSignal.h"

namespace cardwright {

constinit thread_local StopSignal* StopSignal::t_Current = nullptr;

}  // namespace cardwright
