// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "cardwright/automation/Object.h"

namespace cardwright {

/// Lets through only what can form a number in the control: digits, editing keys, one decimal separator and,
/// where allowed, a sign, which a "-" switches at any caret position. Returns the key to use instead of
/// `key`, 0 to drop it. An empty separator is for whole numbers; a null control means the active one.
char16_t FilterKey(char16_t key, Ref<Object> control, std::u16string_view separator, bool allowNegative);

}  // namespace cardwright
