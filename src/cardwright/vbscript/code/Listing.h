#pragma once

#include "cardwright/vbscript/code/Procedure.h"

namespace cardwright::vbscript {

/// A procedure's code as text: a line an instruction, with its place in the code, under the lines of the
/// source that it belongs to.
Text ListCode(const Procedure& procedure, const Names& names);

}  // namespace cardwright::vbscript
