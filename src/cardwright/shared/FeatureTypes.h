// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// Geometry kind of a theme's features, as form projects store it.
enum class FeatureTypeEnum : std::int32_t { ftNone = -1, ftPoint = 0, ftArc = 1, ftPolygon = 2 };

/// Kind of a feature attribute.
enum class AttributeTypeEnum : std::int32_t { atCharacter = 0, atNumeric = 1 };

/// The host's word for a feature type: "POINT", "ARC", "POLYGON", and "" for any other number.
constexpr std::u16string_view FeatureTypeText(FeatureTypeEnum type) noexcept {
  switch (type) {
    case FeatureTypeEnum::ftPoint: return u"POINT";
    case FeatureTypeEnum::ftArc: return u"ARC";
    case FeatureTypeEnum::ftPolygon: return u"POLYGON";
    case FeatureTypeEnum::ftNone: break;
  }
  return u"";
}

/// The features of one type in a theme.
struct FeatureClass {
  Text theme;                                      ///< name of the theme
  FeatureTypeEnum type = FeatureTypeEnum::ftNone;  ///< the geometry kind in it
};

/// What a host says of one attribute of a feature class.
struct AttributeRecord {
  Text name;                                                ///< "" where the host's reply could not be read
  AttributeTypeEnum type = AttributeTypeEnum::atCharacter;  ///< what its values are
  std::int32_t length = 0;                                  ///< characters; 0 for no limit
  std::int32_t decimals = 0;                                ///< decimal places of a number

  friend bool operator==(const AttributeRecord&, const AttributeRecord&) = default;
};

}  // namespace cardwright
