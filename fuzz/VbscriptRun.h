#pragma once

#include <string_view>

namespace cardwright::vbscript {

/// Ends the program, so that the fuzzer keeps the input.
void Require(bool holds);

/// Runs the source as a stranger's, in an engine of its own with narrow limits, then each procedure that it
/// defines, and unmakes the engine. Whatever fails fails by a number, and no memory is left behind.
/// `isObserved` has the engine tell of each statement.
void RunStranger(std::u16string_view source, bool isObserved);

}  // namespace cardwright::vbscript
