// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/builtins/LocalClock.h"

#include <algorithm>
#include <chrono>
#include <ctime>

#include "cardwright/automation/Calendar.h"

namespace cardwright::vbscript {

LocalClock ReadLocalClock() {
  const auto now = std::chrono::system_clock::now();
  const auto whole = std::chrono::floor<std::chrono::seconds>(now);
  const std::time_t seconds = std::chrono::system_clock::to_time_t(whole);
  std::tm parts{};
  localtime_r(&seconds, &parts);
  const int second = std::min(parts.tm_sec, 59);  // a Date has no leap seconds
  return {DaysOf(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday).value_or(0),
          (parts.tm_hour * 60 + parts.tm_min) * 60 + second,
          std::chrono::duration<double>(now - whole).count()};
}

}  // namespace cardwright::vbscript
