#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace cardwright::orv {

/// A date, a time of day, or both, in ISO 8601 text and in parts.
struct Moment {
  int year = 0, month = 0, day = 0;
  int hour = 0, minute = 0;
  int milliseconds = 0;  ///< of the minute: 0 to 59999
  /// Time zone as the data library counts it: 0 unknown, 100 UTC, and one more or less for each quarter of an
  /// hour east or west of it.
  int zone = 0;
};
inline constexpr int kZoneUnknown = 0, kZoneUtc = 100;

/// "2026-02-28"; none where the calendar has no such day.
std::optional<Moment> ReadDate(std::u16string_view text) noexcept;
/// "23:59", "23:59:58" or "23:59:58.125"; none for an hour 24 or finer parts than milliseconds.
std::optional<Moment> ReadTime(std::u16string_view text) noexcept;
/// A date, or a date, "T" or a blank, a time and perhaps a zone: "Z", "+02:00", "-0530" or "+02".
std::optional<Moment> ReadDateTime(std::u16string_view text) noexcept;

/// The same moment in UTC; one without a zone is taken as UTC.
Moment InUtc(Moment moment) noexcept;

enum class Fraction { WhereNeeded, Always };
std::string DateText(const Moment& moment);
std::string TimeText(const Moment& moment, Fraction fraction);
std::string DateTimeText(const Moment& moment, Fraction fraction);

}  // namespace cardwright::orv
