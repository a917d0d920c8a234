// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace cardwright::qt {

/// The colour itself, or one of its hue that can be read on the background: the contrast is at least 4.5 to 1
/// by the formula of the Web Content Accessibility Guidelines 2.1, section 1.4.3.
QColor ReadableOn(const QColor& background, const QColor& color);

}  // namespace cardwright::qt
