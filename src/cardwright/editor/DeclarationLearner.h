// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/editor/EditorCore.h"

namespace cardwright {

/// Takes the names that a line of a script declares into the text widget's constants, and gives their other
/// uses the spelling of the declaration. `position` is that of the line's first character.
void LearnDeclarations(EditorCore& core, std::int32_t position, const Text& line);

}  // namespace cardwright
