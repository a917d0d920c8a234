#pragma once

#include <span>
#include <string_view>

#include "cardwright/automation/Text.h"
#include "cardwright/platform/Color.h"
#include "cardwright/platform/Picture.h"

namespace cardwright {

/// @name Script tail of a form project: the line "[SCRIPT]", the language line and the script to the end.
/// @{

/// All that follows the first "[SCRIPT]" line, its language line included; "" where there is none.
Text ReadScriptSection(std::u16string_view fileName);
/// Appends the tail to a file that is there. The tail ends in one line break more than `content` has, and
/// ReadScriptSection gives that one back: a script grows by it with each reading and saving.
void WriteScriptSection(std::u16string_view fileName, std::u16string_view language,
                        std::u16string_view content);
/// Parts the text at its first line break: `first` gets the line, the result is the rest. A text without a
/// line break is all rest.
Text SplitFirstLine(std::u16string_view text, Text& first);
/// @}

/// @name Icon of a form project, 16 by 16 pixels in the section "FORM_IMAGE".
/// @{

/// Null where the file is missing or has no icon.
Ref<Picture> GetFormImage(std::u16string_view fileName);
/// Replaces the icon; null takes it away. Does nothing where the file is missing or cannot be written.
void SaveFormImage(std::u16string_view fileName, const Picture* picture);
/// Picture of colours in rows from the bottom up; null where they are too few for the size.
Ref<Picture> MakeBitmap(int width, int height, std::span<const OleColor> colors);
/// @}

/// @name Whether the host offers the form in its menu. A missing file is false and stays missing.
/// @{
bool GetShowMenu(std::u16string_view fileName);
void SetShowMenu(std::u16string_view fileName, bool value);
/// @}

}  // namespace cardwright
