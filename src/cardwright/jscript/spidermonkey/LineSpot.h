#pragma once

#include <cstddef>
#include <string_view>

namespace cardwright::jscript {

/// A line of a compiled source, and a place in it.
struct LineSpot {
  std::u16string_view line;
  std::size_t unit = 0;
};

/// Line from 1, column from 0. The library counts columns in characters, of which one may be two units.
LineSpot SpotOf(std::u16string_view text, int line, int column) noexcept;

}  // namespace cardwright::jscript
