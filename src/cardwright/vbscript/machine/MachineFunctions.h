// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/vbscript/builtins/Builtin.h"

namespace cardwright::vbscript {

/// The library functions that need the machine: Eval, Execute, ExecuteGlobal, GetRef. Null for any other
/// name.
const Builtin* FindMachineFunction(std::u16string_view name) noexcept;

}  // namespace cardwright::vbscript
