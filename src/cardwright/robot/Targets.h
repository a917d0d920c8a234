#pragma once

#include <QWidget>

#include "cardwright/automation/Variant.h"

namespace cardwright::robot {

/// The toolkit's widget of a control, of its widget or a part of it, or of a visual control. Error 91 for
/// Nothing and for what is gone, 424 where no object is given, 13 for one of another kind.
QWidget& WidgetOf(const Variant& value);

}  // namespace cardwright::robot
