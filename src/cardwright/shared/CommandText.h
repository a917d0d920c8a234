// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// A mark in the template of a command, as "%%t%%", and what goes in its place.
struct Placeholder {
  std::u16string_view mark;
  std::u16string_view value;
};

/// The template with all its placeholders replaced, one after the other over the whole text: a value that
/// holds a later placeholder is filled in again. Each mark of the template must be among the placeholders.
Text FillTemplate(std::u16string_view pattern, std::span<const Placeholder> placeholders);

}  // namespace cardwright
