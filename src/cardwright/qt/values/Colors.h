// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include "cardwright/platform/Color.h"

class QPalette;

namespace cardwright::qt {

/// The colour that an OLE number means. System colours come from the palette; an index that the platform
/// does not have is black, as it is there.
QColor ToQColor(OleColor color, const QPalette& palette);
/// 0x00BBGGRR.
OleColor FromQColor(const QColor& color) noexcept;

}  // namespace cardwright::qt
