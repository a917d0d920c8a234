#pragma once

#include <string>

namespace cardwright::app {

/// Loads a module of the program, "cardwright-NAME.so", for good and finds the symbol under which it shows
/// what it offers, with C linkage. Error 48 with the reason where it cannot be loaded.
const void* LoadModule(const std::string& name, const char* symbol);
/// Complete path of the running program.
std::string ProgramPath();

}  // namespace cardwright::app
