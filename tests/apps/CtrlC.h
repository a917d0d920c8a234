// SPDX-License-Identifier: MIT
#pragma once

#include "RunProgram.h"

namespace cardwright::testing {

/// Starts a script that first writes to standard error, with its streams in the files "out" and "err" of the
/// folder, and sends it Ctrl+C then. Its exit status, or -1.
int StatusAfterCtrlC(const TempFolder& folder, const std::string& script);

}  // namespace cardwright::testing
