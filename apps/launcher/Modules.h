// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace cardwright::app {

/// Loads a module of the program, "cardwright-NAME.so", and returns the address of its symbol. Modules are
/// never unloaded. Error 48 with the reason if it cannot be loaded.
const void* LoadModule(const std::string& name, const char* symbol);
/// The absolute path of the running program.
std::string ProgramPath();

}  // namespace cardwright::app
