// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

#include "cardwright/scripting/CodeUnitSet.h"

namespace cardwright::scripting {

/// The meaning of an escape: a set of units, or a single unit.
struct RegExpEscape {
  const CodeUnitSet* set = nullptr;
  bool isNegated = false;  ///< the set's complement
  char16_t unit = 0;
  std::size_t length = 0;  ///< units of the pattern after the backslash
};

/// Reads what follows a backslash and means the same in and outside classes: \d, \w, \s and their opposites,
/// control characters, \cX, \xHH, \uHHHH, octal numbers, and every other unit for itself. An escape that
/// lacks its digits is its letter; \c without a letter is the backslash alone. `rest` must not be empty.
RegExpEscape ReadEscape(std::u16string_view rest);

/// A decimal number at the start of `text`, at most `limit` + 1, and its digits.
struct RegExpNumber {
  int value = 0;
  std::size_t digits = 0;
};
RegExpNumber ReadNumber(std::u16string_view text, int limit) noexcept;

}  // namespace cardwright::scripting
