// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QString>

#include "cardwright/model/IControl.h"

namespace cardwright::workbench {

/// A value as the grid shows it.
QString TextOf(PropertyTypeEnum type, const Variant& value);
/// The value of a typed text, or why the text is invalid.
struct TypedValue {
  Variant value;
  QString fault;  ///< "" if there is a value
};
/// The value of a text that the user typed or chose for a row of that type: a result of TextOf, or an
/// equivalent text.
TypedValue ValueOfText(PropertyTypeEnum type, const QString& text);

/// A sample next to the text: a colour or a picture; none for other values.
QIcon SampleOf(PropertyTypeEnum type, const Variant& value);

/// The display name of a feature type.
QString FeatureTypeName(FeatureTypeEnum type);
inline constexpr FeatureTypeEnum kFeatureTypes[] = {FeatureTypeEnum::ftNone, FeatureTypeEnum::ftPoint,
                                                    FeatureTypeEnum::ftArc, FeatureTypeEnum::ftPolygon};

}  // namespace cardwright::workbench
