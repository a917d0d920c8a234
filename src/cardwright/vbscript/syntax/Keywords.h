// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "cardwright/vbscript/syntax/Token.h"

namespace cardwright::vbscript {

/// The keyword that a word is, in any case; Identifier where it is none.
TokenKind KeywordOf(std::u16string_view word) noexcept;

}  // namespace cardwright::vbscript
