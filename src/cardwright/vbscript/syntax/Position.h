// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace cardwright::vbscript {

/// A position in a source, as error messages state it.
struct Position {
  std::int32_t line = 1;    ///< from 1
  std::int32_t column = 0;  ///< UTF-16 units before it in its line, from 0
  friend bool operator==(const Position&, const Position&) = default;
};

}  // namespace cardwright::vbscript
