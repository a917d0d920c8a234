// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <utility>

#include "cardwright/automation/Object.h"
#include "cardwright/platform/SelectorWidgets.h"
#include "cardwright/platform/Surface.h"
#include "cardwright/platform/Widget.h"

// Small lookups for control classes, those of applications among them; not all have a use in the library.

namespace cardwright {

/// @name Rows of a property table by number or by name, whatever its case. `hidden` holds names that the
/// table does not show, separated by ";"; they are numbered after those of the table. Neither fails.
/// @{

/// Number of the row, -1 where there is none. A numeric `index` comes back unchecked, as 16-bit integer.
std::int16_t PropertyIndexOf(std::span<const std::u16string_view> names, const Variant& index,
                             std::u16string_view hidden = {});
/// Name of the row in lower case, "" where there is none.
Text PropertyNameOf(std::span<const std::u16string_view> names, const Variant& index,
                    std::u16string_view hidden = {});
/// @}

/// The widget of that name, or null. Does not fail.
Ref<Widget> ControlByName(const Surface& surface, std::u16string_view name);

/// Puts the greater of the two first.
template <class T>
void OrderPair(T& a, T& b) {
  if (a < b) std::swap(a, b);
}

}  // namespace cardwright
