// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>

namespace cardwright::qt {

/// A small icon of a feature type: a point, a line or an area. Any other number has an empty icon of the same
/// size, so that names beside icons are aligned.
QIcon FeatureTypeIcon(int featureType, const QColor& color, qreal pixelRatio);
inline constexpr int kFeatureTypeIconSize = 13;

}  // namespace cardwright::qt
