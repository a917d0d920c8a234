// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "cardwright/shared/FeatureTypes.h"

namespace cardwright {

/// Kinds of control that an author can draw. The numbers are part of the public interface.
enum class ControlTypeEnum : std::int32_t {
  ctDefault = 0,  ///< no control: the selection tool
  ctCheckBox = 1,
  ctComboBox = 2,
  ctCommandButton = 3,
  ctFrame = 4,
  ctLabel = 5,
  ctListBox = 6,
  ctOptionButton = 7,
  ctTextBox = 8,
  ctTextBoxMultiline = 9,
  ctResourceSelector = 10,
  ctThemeSelector = 11,
  ctFontSelector = 12,
  ctColorSelector = 13,
  ctAttributeSelector = 14,
  ctDbTableViewer = 15,  ///< declared for hosts that use the number; there is no control class
};

/// What a property grid offers as an editor for a property.
enum class PropertyTypeEnum : std::int32_t {
  ptNone = -1,  ///< property not found
  ptString = 0,
  ptColor = 1,
  ptInteger = 2,
  ptFloat = 3,
  ptFont = 4,
  ptBoolean = 5,
  ptAttribute = 6,
  ptCollection = 7,
  ptThemes = 8,
  ptFeatureType = 9,
  ptFileName = 10,
  ptImage = 11,
  ptName = 12,
  ptList = 13,
  ptControls = 14,
  ptConnectionString = 15,  ///< declared for hosts that number it; no property has it
};

/// What may be typed into a text field; the number is kept in the widget's Tag.
enum class InputTypeEnum : std::int32_t { itString = 0, itInteger = 1, itFloat = 2 };

}  // namespace cardwright
