// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>

namespace cardwright::scripting {

/// The time that one call of a regular expression's method may take, checked at every checkpoint of the
/// pattern.
class SearchBudget {
 public:
  /// A second, and more for texts of many millions of units, which take that long with a harmless pattern
  /// too.
  explicit SearchBudget(std::size_t textUnits) noexcept;

  /// False once the time is over or the script should stop. Reads the clock only now and then, more often for
  /// a longer text, as the work between two checkpoints grows with it.
  bool HasTimeLeft() noexcept { return --m_Left > 0 || CheckClock(); }

 private:
  using Clock = std::chrono::steady_clock;
  bool CheckClock() noexcept;

  const Clock::time_point m_End;
  const int m_Interval;
  int m_Left;
};

}  // namespace cardwright::scripting
