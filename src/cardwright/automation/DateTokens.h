// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "cardwright/automation/Locale.h"

namespace cardwright {

/// One piece of a text that may be a date.
struct DateToken {
  enum class Kind { Number, Month, Weekday, Am, Pm, Separator, Colon };

  Kind kind;
  int value = 0;           ///< of a number, up to 99999, or a month from 1
  std::size_t digits = 0;  ///< of a number
  char16_t separator = u'\0';

  bool IsNumber() const noexcept { return kind == Kind::Number; }
  bool IsPoint() const noexcept { return kind == Kind::Separator && separator == u'.'; }
};

/// The pieces of a text, blanks left out, and the words that dates of this country have between their parts
/// too. None where a piece cannot be part of a date.
std::optional<std::vector<DateToken>> ReadDateTokens(std::u16string_view text, const Locale& locale);

}  // namespace cardwright
