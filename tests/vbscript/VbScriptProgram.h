// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/vbscript/VbScriptEngine.h"
#include "programs/Program.h"

namespace cardwright::vbscript {

/// All programs of tests/vbscript/<area>/, in order.
std::vector<std::filesystem::path> ProgramFiles();
Program ReadProgram(const std::filesystem::path& file);
/// Runs the program's source in an engine of its own.
ProgramOutcome RunProgram(const Program& program, const Limits& limits = {});

}  // namespace cardwright::vbscript
