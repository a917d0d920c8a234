// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// The parts of a text between its separators; an empty text has none.
std::vector<Text> Split(std::u16string_view text, char16_t separator);

}  // namespace cardwright
