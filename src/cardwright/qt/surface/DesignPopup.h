#pragma once

#include <QPoint>
#include <QWidget>
#include <span>

#include "cardwright/platform/MenuItem.h"

namespace cardwright::qt {

/// Shows a menu and waits until it is closed: the name of the entry that was chosen, or "". The owner may go
/// meanwhile. Entries that are not visible are left out.
Text RunPopupMenu(QWidget& owner, std::span<const Ref<MenuItem>> items, QPoint place);

}  // namespace cardwright::qt
