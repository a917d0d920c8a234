// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// What conversions between texts and values need to know of a language and country.
struct Locale {
  enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay };

  std::u16string_view name;  ///< "en-us"
  int lcid = 0;              ///< number that SetLocale takes
  char16_t decimal = u'.';
  char16_t group = u',';
  DateOrder dateOrder = DateOrder::MonthDayYear;
  char16_t dateSeparator = u'/';
  bool twoDigitDayMonth = false;  ///< "01/02/2026" rather than "1/2/2026"
  bool clock24 = false;
  std::u16string_view am, pm;
  std::u16string_view currency;
  std::u16string_view currencyForm;          ///< "n $": '$' is replaced by the symbol, 'n' by the number
  std::u16string_view negativeCurrencyForm;  ///< "-n $", "($n)"
  std::u16string_view longDate;              ///< "dddd, d. MMMM yyyy"; words in apostrophes are literal
  int firstWeekday = 0;                      ///< 0 for Sunday
  /// Whether a year's first week is the one with at least four days in it, not the one of January 1.
  bool fourDaysInFirstWeek = false;
  std::array<std::u16string_view, 12> months, shortMonths;
  std::array<std::u16string_view, 12> monthsInDates;           ///< their form after a day: "listopada"
  std::array<std::u16string_view, 7> weekdays, shortWeekdays;  ///< Sunday first

  /// Locale of a name such as "it-IT", "it_IT.UTF-8" or "it"; none where the table has no such language.
  static const Locale* Find(std::u16string_view name) noexcept;
  static const Locale* Find(int lcid) noexcept;
  /// From LC_ALL, LC_NUMERIC or LANG of the process, in this order; English (United States) without one.
  static const Locale& OfProcess() noexcept;

  /// The calling thread's locale: that of the process until set.
  static const Locale& Current() noexcept;
  static void SetCurrent(const Locale& locale) noexcept;
};

}  // namespace cardwright
