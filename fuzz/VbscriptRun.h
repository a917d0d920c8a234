// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace cardwright::vbscript {

/// Aborts, so that the fuzzer keeps the input.
void Require(bool holds);

/// Runs an untrusted source in an engine of its own with narrow limits, then each procedure that it defines,
/// and ends the engine. Every failure must be a numbered error, and all memory must be released. With
/// `isObserved` the engine reports each statement.
void RunStranger(std::u16string_view source, bool isObserved);

}  // namespace cardwright::vbscript
