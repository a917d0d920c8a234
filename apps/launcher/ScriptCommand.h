// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>

namespace cardwright::app {

/// The command `script`, which runs a script file.
/// @param words those that follow the command's name
/// @return the exit status
int RunScriptCommand(std::span<const std::string> words);

}  // namespace cardwright::app
