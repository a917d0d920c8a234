// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>

#include "cardwright/automation/Object.h"

namespace cardwright {

/// Message number in the widget's `Tag`, which is "id", "id:param" or either followed by " | rest".
/// `param` gets the parameter; the widget keeps the rest as its `Tag`, the whole of it where there is no bar.
std::int32_t ParseCaptionTag(Object& widget, Text& param);

/// Gives the widgets the texts whose numbers they carry, by their type. A widget that fails keeps its text.
void TranslateControls(std::span<const Ref<Object>> widgets);

}  // namespace cardwright
