// SPDX-License-Identifier: MIT
#include "cardwright/automation/Split.h"

namespace cardwright {

std::vector<Text> Split(std::u16string_view text, char16_t separator) {
  std::vector<Text> parts;
  if (text.empty()) return parts;
  for (std::size_t at = 0;;) {
    const std::size_t end = text.find(separator, at);
    parts.emplace_back(text.substr(at, end - at));
    if (end == text.npos) return parts;
    at = end + 1;
  }
}

}  // namespace cardwright
