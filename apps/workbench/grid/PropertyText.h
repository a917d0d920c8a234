#pragma once

#include <QIcon>
#include <QString>

#include "cardwright/model/IControl.h"

namespace cardwright::workbench {

/// A value as the grid shows it.
QString TextOf(PropertyTypeEnum type, const Variant& value);
/// What a typed text stands for, or why it stands for nothing.
struct TypedValue {
  Variant value;
  QString fault;  ///< "" where there is a value
};
/// The value of a text that a person has typed or chosen for a row of that type, which is what TextOf shows
/// or what means the same.
TypedValue ValueOfText(PropertyTypeEnum type, const QString& text);

/// A sample beside the text: a colour or a picture; none for other values.
QIcon SampleOf(PropertyTypeEnum type, const Variant& value);

/// What a person calls a feature type.
QString FeatureTypeName(FeatureTypeEnum type);
inline constexpr FeatureTypeEnum kFeatureTypes[] = {FeatureTypeEnum::ftNone, FeatureTypeEnum::ftPoint,
                                                    FeatureTypeEnum::ftArc, FeatureTypeEnum::ftPolygon};

}  // namespace cardwright::workbench
