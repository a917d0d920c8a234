// SPDX-License-Identifier: MIT
#include "cardwright/automation/Calendar.h"

#include <chrono>
#include <cmath>
#include <ctime>

#include "cardwright/automation/Errors.h"

namespace cardwright {

namespace {

namespace chrono = std::chrono;

constexpr chrono::sys_days kDayZero{chrono::year{1899} / 12 / 30};
constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;
constexpr int kSecondsPerDay = 86400;

constexpr int DayNumber(chrono::year_month_day date) { return (chrono::sys_days{date} - kDayZero).count(); }

constexpr int kFirstDay = DayNumber(chrono::year{kFirstYear} / 1 / 1);
constexpr int kLastDay = DayNumber(chrono::year{kLastYear} / 12 / 31);

}  // namespace

bool IsDateRange(double days) noexcept {
  const double whole = std::trunc(days);
  return whole >= kFirstDay && whole <= kLastDay;
}

CalendarTime ToCalendar(Date date) {
  if (!IsDateRange(date.days)) Raise(ErrorNumber::Overflow);
  const double whole = std::trunc(date.days);
  long seconds = std::lround(std::fabs(date.days - whole) * kSecondsPerDay);
  auto day = static_cast<int>(whole);
  if (seconds == kSecondsPerDay) {
    seconds = 0;
    ++day;
    if (day > kLastDay) Raise(ErrorNumber::Overflow);
  }
  const chrono::sys_days days = kDayZero + chrono::days{day};
  const chrono::year_month_day calendar{days};
  return {.year = static_cast<int>(calendar.year()),
          .month = static_cast<int>(static_cast<unsigned>(calendar.month())),
          .day = static_cast<int>(static_cast<unsigned>(calendar.day())),
          .hour = static_cast<int>(seconds / 3600),
          .minute = static_cast<int>(seconds / 60 % 60),
          .second = static_cast<int>(seconds % 60),
          .weekday = static_cast<int>(chrono::weekday{days}.c_encoding())};
}

std::optional<double> DaysOf(int year, int month, int day) noexcept {
  if (year < kFirstYear || year > kLastYear || month < 1 || month > 12 || day < 1) return std::nullopt;
  const chrono::year_month_day date = chrono::year{year} / month / day;
  if (!date.ok()) return std::nullopt;
  return DayNumber(date);
}

Date Join(double days, int secondOfDay) noexcept {
  const double time = static_cast<double>(secondOfDay) / kSecondsPerDay;
  return {days < 0 ? days - time : days + time};
}

int CurrentYear() noexcept {
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
  localtime_r(&now, &parts);
  return parts.tm_year + 1900;
}

}  // namespace cardwright
