// SPDX-License-Identifier: MIT
#include "cardwright/shared/CommandText.h"

#include <algorithm>
#include <string>

namespace cardwright {
namespace {

Text FillOneByOne(std::u16string_view pattern, std::span<const Placeholder> placeholders) {
  Text command(pattern);
  for (const Placeholder& each : placeholders) command = Replace(command, each.mark, each.value, true);
  return command;
}

// The same for values without placeholders of their own, as nearly all are: a form sends a few hundred
// commands to open one feature.
Text FillInOnePass(std::u16string_view pattern, std::span<const Placeholder> placeholders) {
  static thread_local std::u16string command;
  command.clear();
  while (true) {
    const std::size_t mark = pattern.find(u"%%");
    command += pattern.substr(0, mark);
    if (mark == pattern.npos) return Text(command);
    pattern.remove_prefix(mark);
    const auto named = std::ranges::find_if(
        placeholders, [&](const Placeholder& each) { return pattern.starts_with(each.mark); });
    command += named->value;
    pattern.remove_prefix(named->mark.size());
  }
}

bool HoldsMark(const Placeholder& placeholder) {
  return placeholder.value.find(u"%%") != placeholder.value.npos;
}

}  // namespace

Text FillTemplate(std::u16string_view pattern, std::span<const Placeholder> placeholders) {
  return std::ranges::any_of(placeholders, HoldsMark) ? FillOneByOne(pattern, placeholders)
                                                      : FillInOnePass(pattern, placeholders);
}

}  // namespace cardwright
