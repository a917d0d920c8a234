// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace cardwright::robot {

/// Processes the pending events, and those that arrive within that time.
void ProcessEvents(std::chrono::milliseconds time = {});

}  // namespace cardwright::robot
