// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/jscript/JScriptEngine.h"
#include "programs/Program.h"

namespace cardwright::jscript {

/// All programs of tests/jscript/<area>/, in order.
std::vector<std::filesystem::path> ProgramFiles();
Program ReadProgram(const std::filesystem::path& file);
/// Runs the program's source in an engine of its own.
ProgramOutcome RunProgram(const Program& program, const Limits& limits = {});

}  // namespace cardwright::jscript
