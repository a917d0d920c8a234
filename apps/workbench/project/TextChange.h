#pragma once

#include <cstddef>
#include <string_view>

namespace cardwright::workbench {

/// Where two texts differ: between a beginning and an end that both have. Places count from 0.
struct TextChange {
  std::size_t begin;
  std::size_t endBefore;  ///< of what was there
  std::size_t endAfter;   ///< of what is there in its place
};

TextChange ChangeBetween(std::u16string_view before, std::u16string_view after);

}  // namespace cardwright::workbench
