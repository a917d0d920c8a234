// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "cardwright/editor/Lexipad.h"

namespace cardwright {

/// @name Searches of a text widget that ignore case and copy only what they look at
/// @{

/// Position of the last match that ends at `end` or before it; -1 where there is none.
std::int32_t FindBackward(const Lexipad& pad, std::u16string_view what, std::int32_t end);
/// Position of the first match from `start` on; -1 where there is none.
std::int32_t FindForward(const Lexipad& pad, std::u16string_view what, std::int32_t start);
/// @}

}  // namespace cardwright
