// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/vbscript/syntax/SyntaxTree.h"

namespace cardwright::vbscript {

/// Writes the program as text, one statement a line, names and literals as in the source. Parsing the text
/// gives the same program.
Text Print(const SyntaxTree& tree);

}  // namespace cardwright::vbscript
