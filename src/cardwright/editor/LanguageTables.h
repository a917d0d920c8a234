// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "cardwright/editor/Lexipad.h"

namespace cardwright {

inline constexpr std::u16string_view kVbscriptName = u"VBScript";
inline constexpr std::u16string_view kJscriptName = u"JScript";

/// @name Languages that a form's script can have, by name in any case
/// @{
bool IsVbscript(std::u16string_view language) noexcept;
bool IsKnownLanguage(std::u16string_view language) noexcept;
/// What the text widget knows of a language; none for one that is not known.
std::optional<LexipadLanguage> LanguageTable(std::u16string_view language);
/// @}

}  // namespace cardwright
