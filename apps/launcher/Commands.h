#pragma once

#include <span>
#include <string>

namespace cardwright::app {

/// Runs a script; takes the words behind the command's name and gives the exit status.
int RunScriptCommand(std::span<const std::string> words);

}  // namespace cardwright::app
