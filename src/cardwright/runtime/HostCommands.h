#pragma once

#include <string_view>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// The feature that commands speak of.
struct FeaturePlace {
  Text theme;
  std::u16string_view featureType;  ///< "POINT", "ARC", "POLYGON" or ""
};

/// @name Commands of the host's language, in the exact texts that hosts parse. Nothing is escaped: a name
/// that holds a bar cannot be sent.
/// @{
namespace commands {

inline constexpr std::u16string_view kRedrawOff = u"APPLICATION_FLAGREDRAW OFF";
inline constexpr std::u16string_view kRedrawOn = u"APPLICATION_FLAGREDRAW ON";
inline constexpr std::u16string_view kRedraw = u"APPLICATION_REDRAW";
inline constexpr std::u16string_view kThemeNames = u"THEME_NAMES";
/// The feature type of each theme, in the order of the names.
inline constexpr std::u16string_view kThemeFeatureTypes = u"THEME_FEATURE_TYPES";

Text SelectByValue(const FeaturePlace& place, const Text& id);
Text SelectedNumber(const FeaturePlace& place);
Text MoveFirst(const FeaturePlace& place);
Text CurrentIsValid(const FeaturePlace& place);
Text SelectNone(const FeaturePlace& place);
Text ThemeNumber(const Text& theme);
Text CreateTheme(const FeaturePlace& place);
Text AttributeNames(const FeaturePlace& place);
Text AttributeNumber(const FeaturePlace& place);
/// `number` counts from 1.
Text Attribute(const FeaturePlace& place, int number);
Text GetAttribute(const FeaturePlace& place, const Text& name);
Text SetAttribute(const FeaturePlace& place, const Text& name, const Text& value);

}  // namespace commands
/// @}

}  // namespace cardwright
