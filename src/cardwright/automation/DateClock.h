// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "cardwright/automation/DateTokens.h"

namespace cardwright {

/// A clock time found in a text, and what the text has besides it.
struct DateClock {
  int second = 0;  ///< of the day
  std::vector<DateToken> rest;
};

/// Whether the tokens have a clock time written with colons or with AM or PM.
bool HasClock(const std::vector<DateToken>& tokens) noexcept;
/// The first such time, taken out; none where there is none or it is impossible, as 25:00.
std::optional<DateClock> TakeClock(const std::vector<DateToken>& tokens);
/// The last time written with points, as "15.30" or "9.05.30", taken out.
std::optional<DateClock> TakeDottedClock(const std::vector<DateToken>& tokens);

}  // namespace cardwright
