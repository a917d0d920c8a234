#pragma once

#include <QColor>
#include <QIcon>

namespace cardwright::qt {

/// A small picture of a feature type: a point, a line, an area; an empty one of the same size for any other
/// number, so that names stand in line.
QIcon FeatureTypeIcon(int featureType, const QColor& color, qreal pixelRatio);
inline constexpr int kFeatureTypeIconSize = 13;

}  // namespace cardwright::qt
