// SPDX-License-Identifier: MIT
#include "cardwright/automation/DateFormat.h"

#include <algorithm>
#include <string>

namespace cardwright {

namespace {

std::u16string Padded(int value, std::size_t width) {
  const std::string digits = std::to_string(value);
  std::u16string text(digits.size() < width ? width - digits.size() : 0, u'0');
  return text.append(digits.begin(), digits.end());
}

// One run of a letter in a pattern: "d" and "dd" the day, "dddd" its name, "MMMM" the month's name, "yyyy".
std::u16string FormatPart(char16_t letter, std::size_t length, const CalendarTime& time,
                          const Locale& locale) {
  const auto month = static_cast<std::size_t>(time.month - 1);
  switch (letter) {
    case u'd':
      if (length < 3) return Padded(time.day, length);
      return std::u16string(locale.weekdays[static_cast<std::size_t>(time.weekday)]);
    case u'M': {
      const std::u16string_view beside = locale.monthsInDates[month];
      return std::u16string(beside.empty() ? locale.months[month] : beside);
    }
    case u'y': return Padded(time.year, length);
    default: return std::u16string(length, letter);
  }
}

}  // namespace

Text FormatShortDate(const CalendarTime& time, const Locale& locale) {
  const std::size_t width = locale.twoDigitDayMonth ? 2 : 1;
  const std::u16string day = Padded(time.day, width);
  const std::u16string month = Padded(time.month, width);
  const std::u16string year = Padded(time.year, 4);
  const char16_t by = locale.dateSeparator;
  switch (locale.dateOrder) {
    case Locale::DateOrder::MonthDayYear: return Text(month + by + day + by + year);
    case Locale::DateOrder::DayMonthYear: return Text(day + by + month + by + year);
    case Locale::DateOrder::YearMonthDay: return Text(year + by + month + by + day);
  }
  return {};
}

Text FormatLongDate(const CalendarTime& time, const Locale& locale) {
  std::u16string text;
  bool isQuoted = false;
  for (std::u16string_view rest = locale.longDate; !rest.empty();) {
    const char16_t letter = rest.front();
    const std::size_t length = std::min(rest.find_first_not_of(letter), rest.size());
    if (letter == u'\'') {
      isQuoted = !isQuoted;
    } else {
      text += isQuoted ? std::u16string(length, letter) : FormatPart(letter, length, time, locale);
    }
    rest.remove_prefix(length);
  }
  return Text(text);
}

Text FormatLongTime(const CalendarTime& time, const Locale& locale) {
  const std::u16string tail = u":" + Padded(time.minute, 2) + u":" + Padded(time.second, 2);
  if (locale.clock24) return Text(Padded(time.hour, 2) + tail);
  const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
  return Text(Padded(hour, 1) + tail + u" " + std::u16string(time.hour < 12 ? locale.am : locale.pm));
}

Text FormatShortTime(const CalendarTime& time) {
  return Text(Padded(time.hour, 2) + u":" + Padded(time.minute, 2));
}

Text FormatDate(Date date, const Locale& locale) {
  const CalendarTime time = ToCalendar(date);
  const bool hasClock = time.hour != 0 || time.minute != 0 || time.second != 0;
  const bool hasDay = time.year != 1899 || time.month != 12 || time.day != 30;
  if (!hasDay) return FormatLongTime(time, locale);
  if (!hasClock) return FormatShortDate(time, locale);
  return FormatShortDate(time, locale) + u" " + FormatLongTime(time, locale);
}

}  // namespace cardwright
