// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace cardwright::workbench {

/// The range in which two texts differ: between their common beginning and their common end.
struct TextChange {
  std::size_t begin;
  std::size_t endBefore;  ///< end of the replaced range in the first text
  std::size_t endAfter;   ///< end of its replacement in the second text
};

TextChange ChangeBetween(std::u16string_view before, std::u16string_view after);

}  // namespace cardwright::workbench
