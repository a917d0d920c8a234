// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace cardwright::orv {

/// A date, a time of day, or both, with conversions from and to ISO 8601.
struct DateTime {
  int year = 0, month = 0, day = 0;
  int hour = 0, minute = 0;
  int milliseconds = 0;  ///< of the minute: 0 to 59999
  /// The time zone as the data library counts it: 0 unknown, 1 local time, 100 UTC, one more for each quarter
  /// of an hour east of that and one less for each west of it.
  int zone = 0;
};
inline constexpr int kZoneUnknown = 0, kZoneLocal = 1, kZoneUtc = 100;

/// "2026-02-28"; none where there is no such day.
std::optional<DateTime> ParseDate(std::u16string_view text) noexcept;
/// "23:59", "23:59:58" or "23:59:58.125"; none for hour 24, or for fractions finer than milliseconds.
std::optional<DateTime> ParseTime(std::u16string_view text) noexcept;
/// A date alone, or with "T" or a blank, a time, and optionally a zone: "Z", "+02:00", "-0530" or "+02".
std::optional<DateTime> ParseDateTime(std::u16string_view text) noexcept;

/// The same instant in UTC. Without a zone the time is taken as UTC.
DateTime ToUtc(DateTime dateTime) noexcept;

enum class Fraction { WhereNeeded, Always };
std::string FormatDate(const DateTime& dateTime);
std::string FormatTime(const DateTime& dateTime, Fraction fraction);
std::string FormatDateTime(const DateTime& dateTime, Fraction fraction);

}  // namespace cardwright::orv
