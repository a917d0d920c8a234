// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "cardwright/automation/Variant.h"
#include "cardwright/storage/CodePage.h"

namespace cardwright {

/// @name How values are stored in files of INI form.
/// @{
/// What a reader gets of a value: at most 8191 characters, a numeric text with points for commas.
Text ReadIniValue(std::string_view bytes, const CodePage& page);
Text ReadIniValue(std::u16string_view text);
/// The text that is stored for a value: numbers with a point and a blank before those that are not negative,
/// booleans as 1 and 0, all else as plain text.
Text StoredIniText(const Variant& value);
/// @}

/// Names as the platform lists them: the blank ones are left out, and a list that does not fit into a buffer
/// of `size` characters is cut, wherever that falls in a name.
std::vector<Text> ListIniNames(std::span<const std::string_view> names, std::size_t size,
                               const CodePage& page);
/// @name Sizes of the buffer for the two lists, which files in use rely on: they differ by one.
/// @{
constexpr std::size_t kSectionListSize = 8191;
constexpr std::size_t kKeyListSize = 8192;
/// @}

}  // namespace cardwright
