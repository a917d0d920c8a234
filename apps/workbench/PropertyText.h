#pragma once

#include <QIcon>
#include <QString>

#include "model/IControl.h"

namespace cardwright::workbench {

/// A value as the grid shows it.
QString TextOf(PropertyTypeEnum type, const Variant& value);
/// A sample beside the text: a colour or a picture; none for other values.
QIcon SampleOf(PropertyTypeEnum type, const Variant& value);

/// What a person calls a feature type.
QString FeatureTypeName(FeatureTypeEnum type);
inline constexpr FeatureTypeEnum kFeatureTypes[] = {FeatureTypeEnum::ftNone, FeatureTypeEnum::ftPoint,
                                                    FeatureTypeEnum::ftArc, FeatureTypeEnum::ftPolygon};

}  // namespace cardwright::workbench
