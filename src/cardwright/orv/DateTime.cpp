// SPDX-License-Identifier: MIT
#include "cardwright/orv/DateTime.h"

#include <chrono>
#include <cstdio>

namespace cardwright::orv {

namespace {

/// Consumes fixed numbers of digits and single characters from the front of a text.
class Digits {
 public:
  explicit Digits(std::u16string_view text) noexcept : m_Text(text) {}

  bool AtEnd() const noexcept { return m_Text.empty(); }
  bool IsAtDigit() const noexcept { return !AtEnd() && m_Text.front() >= u'0' && m_Text.front() <= u'9'; }
  bool Take(char16_t c) noexcept {
    if (AtEnd() || m_Text.front() != c) return false;
    m_Text.remove_prefix(1);
    return true;
  }
  bool Take(int count, int& number) noexcept {
    number = 0;
    for (int i = 0; i < count; ++i) {
      if (!IsAtDigit()) return false;
      number = number * 10 + (m_Text.front() - u'0');
      m_Text.remove_prefix(1);
    }
    return true;
  }

 private:
  std::u16string_view m_Text;
};

bool TakeDate(Digits& text, DateTime& dateTime) noexcept {
  if (!text.Take(4, dateTime.year) || !text.Take(u'-') || !text.Take(2, dateTime.month) || !text.Take(u'-') ||
      !text.Take(2, dateTime.day))
    return false;
  const std::chrono::year_month_day day{std::chrono::year(dateTime.year),
                                        std::chrono::month(static_cast<unsigned>(dateTime.month)),
                                        std::chrono::day(static_cast<unsigned>(dateTime.day))};
  return dateTime.year > 0 && day.ok();
}

bool TakeFraction(Digits& text, DateTime& dateTime) noexcept {
  if (!text.Take(u'.')) return true;
  if (!text.IsAtDigit()) return false;
  int scale = 100, digit = 0;
  while (text.IsAtDigit()) {
    text.Take(1, digit);
    if (scale == 0 && digit != 0) return false;
    dateTime.milliseconds += digit * scale;
    scale /= 10;
  }
  return true;
}

bool TakeTime(Digits& text, DateTime& dateTime) noexcept {
  if (!text.Take(2, dateTime.hour) || !text.Take(u':') || !text.Take(2, dateTime.minute)) return false;
  if (dateTime.hour > 23 || dateTime.minute > 59) return false;
  if (!text.Take(u':')) return true;
  int second = 0;
  if (!text.Take(2, second) || second > 59) return false;
  dateTime.milliseconds = second * 1000;
  return TakeFraction(text, dateTime);
}

bool TakeZone(Digits& text, DateTime& dateTime) noexcept {
  dateTime.zone = kZoneUnknown;
  if (text.AtEnd()) return true;
  dateTime.zone = kZoneUtc;
  if (text.Take(u'Z') || text.Take(u'z')) return true;
  const bool east = text.Take(u'+');
  if (!east && !text.Take(u'-')) return false;
  int hours = 0, minutes = 0;
  if (!text.Take(2, hours)) return false;
  if (!text.AtEnd()) {
    text.Take(u':');
    if (!text.Take(2, minutes)) return false;
  }
  // Real time zones lie between -12 and +14 hours, in steps of a quarter.
  if (hours > 14 || minutes > 59 || minutes % 15 != 0) return false;
  const int quarters = hours * 4 + minutes / 15;
  dateTime.zone = kZoneUtc + (east ? quarters : -quarters);
  return true;
}

template <class... Args>
std::string Print(const char* format, Args... args) {
  char buffer[64];
  const int length = std::snprintf(buffer, sizeof buffer, format, args...);
  return std::string(buffer, static_cast<std::size_t>(length));
}

std::string FormatZone(int zone) {
  if (zone <= kZoneLocal) return {};
  if (zone == kZoneUtc) return "Z";
  const int quarters = zone > kZoneUtc ? zone - kZoneUtc : kZoneUtc - zone;
  return Print("%c%02d:%02d", zone > kZoneUtc ? '+' : '-', quarters / 4, quarters % 4 * 15);
}

}  // namespace

std::optional<DateTime> ParseDate(std::u16string_view text) noexcept {
  DateTime dateTime;
  Digits digits(text);
  if (!TakeDate(digits, dateTime) || !digits.AtEnd()) return std::nullopt;
  return dateTime;
}

std::optional<DateTime> ParseTime(std::u16string_view text) noexcept {
  DateTime dateTime;
  Digits digits(text);
  if (!TakeTime(digits, dateTime) || !digits.AtEnd()) return std::nullopt;
  return dateTime;
}

std::optional<DateTime> ParseDateTime(std::u16string_view text) noexcept {
  DateTime dateTime;
  Digits digits(text);
  if (!TakeDate(digits, dateTime)) return std::nullopt;
  if (digits.AtEnd()) return dateTime;
  if (!digits.Take(u'T') && !digits.Take(u't') && !digits.Take(u' ')) return std::nullopt;
  if (!TakeTime(digits, dateTime) || !TakeZone(digits, dateTime) || !digits.AtEnd()) return std::nullopt;
  return dateTime;
}

DateTime ToUtc(DateTime dateTime) noexcept {
  using namespace std::chrono;
  const int zone = dateTime.zone;
  dateTime.zone = kZoneUtc;
  if (zone <= kZoneLocal || zone == kZoneUtc) return dateTime;
  const year_month_day local{year(dateTime.year), month(static_cast<unsigned>(dateTime.month)),
                             day(static_cast<unsigned>(dateTime.day))};
  const auto whole =
      sys_days(local) + hours(dateTime.hour) + minutes(dateTime.minute) - minutes((zone - kZoneUtc) * 15);
  const auto midnight = floor<days>(whole);
  const year_month_day utc(midnight);
  const auto minuteOfDay = duration_cast<minutes>(whole - midnight).count();
  dateTime.year = static_cast<int>(utc.year());
  dateTime.month = static_cast<int>(static_cast<unsigned>(utc.month()));
  dateTime.day = static_cast<int>(static_cast<unsigned>(utc.day()));
  dateTime.hour = static_cast<int>(minuteOfDay / 60);
  dateTime.minute = static_cast<int>(minuteOfDay % 60);
  return dateTime;
}

std::string FormatDate(const DateTime& dateTime) {
  return Print("%04d-%02d-%02d", dateTime.year, dateTime.month, dateTime.day);
}

std::string FormatTime(const DateTime& dateTime, Fraction fraction) {
  const int second = dateTime.milliseconds / 1000, rest = dateTime.milliseconds % 1000;
  if (rest == 0 && fraction == Fraction::WhereNeeded)
    return Print("%02d:%02d:%02d", dateTime.hour, dateTime.minute, second);
  return Print("%02d:%02d:%02d.%03d", dateTime.hour, dateTime.minute, second, rest);
}

std::string FormatDateTime(const DateTime& dateTime, Fraction fraction) {
  return FormatDate(dateTime) + "T" + FormatTime(dateTime, fraction) + FormatZone(dateTime.zone);
}

}  // namespace cardwright::orv
