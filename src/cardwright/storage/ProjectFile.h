// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "cardwright/automation/Text.h"
#include "cardwright/platform/Picture.h"

namespace cardwright {

/// @name Queries on a form project that is not opened otherwise. A missing file has no icon and a menu flag
/// of false, and stays missing.
/// @{

/// The icon of 16 by 16 pixels; null where there is none.
Ref<Picture> GetFormImage(std::u16string_view fileName);
/// Whether the host offers the form in its menu.
bool GetShowMenu(std::u16string_view fileName);
void SetShowMenu(std::u16string_view fileName, bool value);
/// @}

}  // namespace cardwright
