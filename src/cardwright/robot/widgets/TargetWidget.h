// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "cardwright/automation/Variant.h"

namespace cardwright::robot {

/// The toolkit's widget for a control, for its widget or a part of it, or for a visual control. Error 91 for
/// Nothing and for deleted widgets, 424 where no object is given, 13 for an object of another kind.
QWidget& WidgetOf(const Variant& value);

}  // namespace cardwright::robot
