#include "cardwright/scripting/SearchBudget.h"

#include <algorithm>

#include "cardwright/platform/StopSignal.h"

namespace cardwright::scripting {

namespace {

constexpr std::chrono::nanoseconds kLeast = std::chrono::seconds(1);
constexpr std::chrono::nanoseconds kForUnit{50};
constexpr std::size_t kUnitsBetweenLooks = std::size_t{1} << 22;
constexpr std::size_t kMostCheckpoints = 1024;

}  // namespace

SearchBudget::SearchBudget(std::size_t textUnits) noexcept
    : m_End(Clock::now() + kLeast + kForUnit * textUnits),
      m_Interval(static_cast<int>(
          std::clamp<std::size_t>(kUnitsBetweenLooks / (textUnits + 1), 1, kMostCheckpoints))),
      m_Left(m_Interval) {}

bool SearchBudget::LookAtClock() noexcept {
  m_Left = m_Interval;
  return Clock::now() < m_End && !StopSignal::IsRaised();
}

}  // namespace cardwright::scripting
