// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace cardwright::app {

/// Exit statuses, as the help lists them.
enum ExitStatus { kDone = 0, kFailed = 1, kWrongUse = 2, kCancelled = 3 };

/// @name One line on standard output or standard error, in UTF-8.
/// @{
void PrintLine(std::string_view line);
void PrintError(std::string_view line);
/// @}

}  // namespace cardwright::app
