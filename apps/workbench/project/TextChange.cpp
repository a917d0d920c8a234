// SPDX-License-Identifier: MIT
#include "workbench/project/TextChange.h"

#include <algorithm>

namespace cardwright::workbench {

// The end is compared first: a line end that is typed before another one then belongs to the line where it
// was typed.
TextChange ChangeBetween(std::u16string_view before, std::u16string_view after) {
  const auto end = std::ranges::mismatch(before.rbegin(), before.rend(), after.rbegin(), after.rend());
  const auto endBefore = static_cast<std::size_t>(before.rend() - end.in1);
  const auto endAfter = static_cast<std::size_t>(after.rend() - end.in2);
  const auto begin = std::ranges::mismatch(before.substr(0, endBefore), after.substr(0, endAfter));
  return {static_cast<std::size_t>(begin.in1 - before.begin()), endBefore, endAfter};
}

}  // namespace cardwright::workbench
