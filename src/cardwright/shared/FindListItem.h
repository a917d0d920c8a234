// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "cardwright/automation/Object.h"
#include "cardwright/platform/SelectorWidgets.h"

namespace cardwright {

/// How FindListItem compares.
struct ListSearch {
  bool matchCase = false;
  bool byItemData = false;  ///< compare the number kept with each row, "" counting as 0
  bool exact = false;       ///< else the rows that begin with the text count too
  int notFound = -1;
};

/// @name First row of a list that the text names, counted from 0, or `search.notFound`. Neither fails.
/// @{
int FindListItem(const ComboWidget& list, std::u16string_view text, const ListSearch& search);
int FindListItem(const HostListWidget& list, std::u16string_view text, const ListSearch& search);
/// For any widget that has `ListCount`, `List` and `ItemData`.
int FindListItem(Object& list, std::u16string_view text, const ListSearch& search);
/// @}

}  // namespace cardwright
