// SPDX-License-Identifier: MIT
#include "cardwright/shared/ModuleState.h"

#include <algorithm>

#include "cardwright/automation/Conversions.h"

namespace cardwright {

Text FindDecimalSeparator() {
  const Text number = ToText(10.3);
  const std::u16string_view text = number;
  const auto isDigit = [](char16_t c) { return c >= u'0' && c <= u'9'; };
  const auto found = std::ranges::find_if_not(text, isDigit);
  return text.substr(static_cast<std::size_t>(found - text.begin()), 1);
}

ModuleState& Module() {
  thread_local ModuleState state;
  return state;
}

HostExecutor& SharedHost() {
  Ref<HostExecutor>& host = Module().hostExecutor;
  if (!host) host = MakeRef<HostExecutor>();
  return *host;
}

}  // namespace cardwright
