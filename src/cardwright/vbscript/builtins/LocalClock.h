// SPDX-License-Identifier: MIT
#pragma once

namespace cardwright::vbscript {

/// The time of the machine's clock in the process's time zone.
struct LocalClock {
  double days;      ///< whole days since 1899-12-30
  int secondOfDay;  ///< 0 to 86399
  double fraction;  ///< of the second

  float SecondsSinceMidnight() const noexcept { return static_cast<float>(secondOfDay + fraction); }
};

LocalClock ReadLocalClock();

}  // namespace cardwright::vbscript
