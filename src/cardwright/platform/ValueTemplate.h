// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "cardwright/platform/Color.h"
#include "cardwright/platform/Font.h"

namespace cardwright {

/// @name Templates of the values that font and colour selectors give to the host. Placeholders are between
/// "%" in any case: `%r%`, `%g%` and `%b%`, the components of the colour, are known to both. What is no
/// placeholder stays as it is, and inserted values are not expanded again. Colours are to be resolved: a
/// value has to mean the same on every machine.
/// @{

/// Knows `%c%`, the colour's number, besides the components.
Text FillColorTemplate(std::u16string_view mask, OleColor color);
/// Knows `%n%`, the name; `%s%`, `%spx%` and `%stw%`, the size in points (with a point, whatever the locale),
/// in whole pixels and in whole twips, half to even; `%bold%`, `%italic%`, `%underline%` and
/// `%strikethrough%`, "True" or "False", besides the components.
Text FillFontTemplate(std::u16string_view mask, const FontValues& font, OleColor color);

/// @}

}  // namespace cardwright
