// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Conversions.h"

namespace cardwright {

/// @name What reader and writer of a form project call its parts.
/// @{
constexpr std::string_view kScriptMarker = "[SCRIPT]\r\n";
constexpr std::u16string_view kImageSection = u"FORM_IMAGE";
/// Key of a pixel of the icon, from 0.
inline Text PixelKey(std::size_t index) { return Text(u"p") + ToText(static_cast<std::int32_t>(index)); }
/// @}

}  // namespace cardwright
