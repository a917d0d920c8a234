#pragma once

#include "qt/WidgetCore.h"

namespace cardwright::qt {

/// Adds the colours of a drop-down list that is drawn as a button, where they are not those of its kind.
void CollectListColors(QPalette& own, const WidgetKind& kind, OleColor back, OleColor fore);

}  // namespace cardwright::qt
