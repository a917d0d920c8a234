#pragma once

#include <Qt>

#include "cardwright/platform/DesignSurface.h"

namespace cardwright::qt {

/// The toolkit's shape of a pointer; the arrow for Default.
Qt::CursorShape ToCursorShape(PointerShape pointer) noexcept;

}  // namespace cardwright::qt
