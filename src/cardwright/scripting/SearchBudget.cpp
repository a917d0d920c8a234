// SPDX-License-Identifier: MIT
#include "cardwright/scripting/SearchBudget.h"

#include <algorithm>

#include "cardwright/platform/StopSignal.h"

namespace cardwright::scripting {

namespace {

constexpr std::chrono::nanoseconds kMinTime = std::chrono::seconds(1);
constexpr std::chrono::nanoseconds kTimePerUnit{50};
constexpr std::size_t kUnitsBetweenChecks = std::size_t{1} << 22;
constexpr std::size_t kMaxCheckpoints = 1024;

}  // namespace

SearchBudget::SearchBudget(std::size_t textUnits) noexcept
    : m_End(Clock::now() + kMinTime + kTimePerUnit * textUnits),
      m_Interval(static_cast<int>(
          std::clamp<std::size_t>(kUnitsBetweenChecks / (textUnits + 1), 1, kMaxCheckpoints))),
      m_Left(m_Interval) {}

bool SearchBudget::CheckClock() noexcept {
  m_Left = m_Interval;
  return Clock::now() < m_End && !StopSignal::IsRaised();
}

}  // namespace cardwright::scripting
