// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace cardwright::jscript {

/// A line of a compiled source and an offset in it, in UTF-16 units.
struct LinePosition {
  std::u16string_view line;
  std::size_t unit = 0;
};

/// `line` counts from 1, `column` from 0. The library counts columns in code points, one of which may be two
/// UTF-16 units.
LinePosition FindLinePosition(std::u16string_view text, int line, int column) noexcept;

}  // namespace cardwright::jscript
