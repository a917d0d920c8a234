// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/robot/input/Mouse.h"

namespace cardwright::robot {

/// The part of a row to click.
enum class ItemPart { Text, Check };

/// Clicks a row of a list view, or of a combo box, whose list it opens first. Rows count from 1 and are
/// scrolled into view. Error 9 for a missing row, 438 for a widget without rows or a row without a check box.
void ClickItem(Mouse& mouse, QWidget& widget, int row, ItemPart part);

}  // namespace cardwright::robot
