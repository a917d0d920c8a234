#pragma once

#include <chrono>

namespace cardwright::robot {

/// Serves the events that are there, and those that come within that time.
void ServeEvents(std::chrono::milliseconds time = {});

}  // namespace cardwright::robot
