// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/vbscript/code/Procedure.h"

namespace cardwright::vbscript {

/// A procedure's code as text: one instruction a line, numbered by its position, below the number of the
/// source line that it was compiled from.
Text DisassembleProcedure(const Procedure& procedure, const Names& names);

}  // namespace cardwright::vbscript
