#pragma once

#include <vector>

#include "cardwright/runtime/CAttrib.h"

namespace cardwright {

/// @name What a host lists for the selectors, asked over a connection by its handle; a handle that is none
/// lists nothing. Names are trimmed; empty ones and all but the first of equal ones are left out, and a list
/// ends after 65,535 names.
/// @{

struct ListedTheme {
  Text name;
  FeatureTypeEnum featureType = FeatureTypeEnum::ftNone;  ///< ftNone too where the host does not tell
};
/// The host's themes in its order: two requests, whatever their number.
std::vector<ListedTheme> ListThemes(std::int32_t connection);

struct ListedAttribute {
  Text name;
  std::int32_t number = 0;  ///< in the host's own list, from 1
};
/// Attributes of a theme's features of one type, in the host's order, by one request. None for an empty
/// theme.
std::vector<ListedAttribute> ListAttributes(std::int32_t connection, const Text& theme,
                                            FeatureTypeEnum featureType);
/// Type and length of one of them, by a request of its own: for the few that are on the screen. Null where
/// the host does not tell, or tells of another attribute.
Ref<CAttrib> DescribeAttribute(std::int32_t connection, const Text& theme, FeatureTypeEnum featureType,
                               const ListedAttribute& attribute);

/// Has the host create a theme; true where it is there afterwards. A name that no command or list can hold
/// (blank, with a comma, a bar or a control character) is not sent.
bool CreateTheme(std::int32_t connection, const Text& name, FeatureTypeEnum featureType);
/// @}

}  // namespace cardwright
