#pragma once

#include "cardwright/vbscript/syntax/SyntaxTree.h"

namespace cardwright::vbscript {

/// The program as text again, one statement a line, names and literals as they were written. Parsing it gives
/// the same program.
Text Print(const SyntaxTree& tree);

}  // namespace cardwright::vbscript
