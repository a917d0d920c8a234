#pragma once

#include "cardwright/robot/Mouse.h"

namespace cardwright::robot {

/// What of a list's row is clicked.
enum class ItemPart { Text, Check };

/// Clicks a row of a list view or, having opened its list, of a combo box; rows count from 1 and are scrolled
/// into view. Error 9 for a row that is not there, 438 for a widget without rows or a row without a check
/// box.
void ClickItem(Mouse& mouse, QWidget& widget, int row, ItemPart part);

}  // namespace cardwright::robot
