#include "cardwright/orv/Moment.h"

#include <chrono>
#include <cstdio>

namespace cardwright::orv {

namespace {

/// Takes fixed numbers of digits and single characters off the front of a text.
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

bool TakeDate(Digits& text, Moment& moment) noexcept {
  if (!text.Take(4, moment.year) || !text.Take(u'-') || !text.Take(2, moment.month) || !text.Take(u'-') ||
      !text.Take(2, moment.day))
    return false;
  const std::chrono::year_month_day day{std::chrono::year(moment.year),
                                        std::chrono::month(static_cast<unsigned>(moment.month)),
                                        std::chrono::day(static_cast<unsigned>(moment.day))};
  return moment.year > 0 && day.ok();
}

bool TakeFraction(Digits& text, Moment& moment) noexcept {
  if (!text.Take(u'.')) return true;
  if (!text.IsAtDigit()) return false;
  int scale = 100, digit = 0;
  while (text.IsAtDigit()) {
    text.Take(1, digit);
    if (scale == 0 && digit != 0) return false;
    moment.milliseconds += digit * scale;
    scale /= 10;
  }
  return true;
}

bool TakeTime(Digits& text, Moment& moment) noexcept {
  if (!text.Take(2, moment.hour) || !text.Take(u':') || !text.Take(2, moment.minute)) return false;
  if (moment.hour > 23 || moment.minute > 59) return false;
  if (!text.Take(u':')) return true;
  int second = 0;
  if (!text.Take(2, second) || second > 59) return false;
  moment.milliseconds = second * 1000;
  return TakeFraction(text, moment);
}

bool TakeZone(Digits& text, Moment& moment) noexcept {
  moment.zone = kZoneUnknown;
  if (text.AtEnd()) return true;
  moment.zone = kZoneUtc;
  if (text.Take(u'Z') || text.Take(u'z')) return true;
  const bool east = text.Take(u'+');
  if (!east && !text.Take(u'-')) return false;
  int hours = 0, minutes = 0;
  if (!text.Take(2, hours)) return false;
  if (!text.AtEnd()) {
    text.Take(u':');
    if (!text.Take(2, minutes)) return false;
  }
  // Zones of the world lie between -12 and +14 hours, all on quarters.
  if (hours > 14 || minutes > 59 || minutes % 15 != 0) return false;
  const int quarters = hours * 4 + minutes / 15;
  moment.zone = kZoneUtc + (east ? quarters : -quarters);
  return true;
}

template <class... Args>
std::string Print(const char* format, Args... args) {
  char buffer[64];
  const int length = std::snprintf(buffer, sizeof buffer, format, args...);
  return std::string(buffer, static_cast<std::size_t>(length));
}

std::string ZoneText(int zone) {
  if (zone < 2) return {};  // unknown, or "local time" without saying where
  if (zone == kZoneUtc) return "Z";
  const int quarters = zone > kZoneUtc ? zone - kZoneUtc : kZoneUtc - zone;
  return Print("%c%02d:%02d", zone > kZoneUtc ? '+' : '-', quarters / 4, quarters % 4 * 15);
}

}  // namespace

std::optional<Moment> ReadDate(std::u16string_view text) noexcept {
  Moment moment;
  Digits digits(text);
  if (!TakeDate(digits, moment) || !digits.AtEnd()) return std::nullopt;
  return moment;
}

std::optional<Moment> ReadTime(std::u16string_view text) noexcept {
  Moment moment;
  Digits digits(text);
  if (!TakeTime(digits, moment) || !digits.AtEnd()) return std::nullopt;
  return moment;
}

std::optional<Moment> ReadDateTime(std::u16string_view text) noexcept {
  Moment moment;
  Digits digits(text);
  if (!TakeDate(digits, moment)) return std::nullopt;
  if (digits.AtEnd()) return moment;
  if (!digits.Take(u'T') && !digits.Take(u't') && !digits.Take(u' ')) return std::nullopt;
  if (!TakeTime(digits, moment) || !TakeZone(digits, moment) || !digits.AtEnd()) return std::nullopt;
  return moment;
}

Moment InUtc(Moment moment) noexcept {
  using namespace std::chrono;
  const int zone = moment.zone;
  moment.zone = kZoneUtc;
  if (zone < 2 || zone == kZoneUtc) return moment;
  const year_month_day local{year(moment.year), month(static_cast<unsigned>(moment.month)),
                             day(static_cast<unsigned>(moment.day))};
  const auto whole =
      sys_days(local) + hours(moment.hour) + minutes(moment.minute) - minutes((zone - kZoneUtc) * 15);
  const auto midnight = floor<days>(whole);
  const year_month_day utc(midnight);
  const auto minuteOfDay = duration_cast<minutes>(whole - midnight).count();
  moment.year = static_cast<int>(utc.year());
  moment.month = static_cast<int>(static_cast<unsigned>(utc.month()));
  moment.day = static_cast<int>(static_cast<unsigned>(utc.day()));
  moment.hour = static_cast<int>(minuteOfDay / 60);
  moment.minute = static_cast<int>(minuteOfDay % 60);
  return moment;
}

std::string DateText(const Moment& moment) {
  return Print("%04d-%02d-%02d", moment.year, moment.month, moment.day);
}

std::string TimeText(const Moment& moment, Fraction fraction) {
  const int second = moment.milliseconds / 1000, rest = moment.milliseconds % 1000;
  if (rest == 0 && fraction == Fraction::WhereNeeded)
    return Print("%02d:%02d:%02d", moment.hour, moment.minute, second);
  return Print("%02d:%02d:%02d.%03d", moment.hour, moment.minute, second, rest);
}

std::string DateTimeText(const Moment& moment, Fraction fraction) {
  return DateText(moment) + "T" + TimeText(moment, fraction) + ZoneText(moment.zone);
}

}  // namespace cardwright::orv
