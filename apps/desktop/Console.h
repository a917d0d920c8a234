#pragma once

#include <QString>

namespace cardwright::desktop {

/// Exit statuses, as the help tells them.
enum ExitStatus { kDone = 0, kFaultsFound = 1, kWrongUse = 2, kCancelled = 3 };

/// @name One line on standard output or standard error, in UTF-8.
/// @{
void PrintLine(const QString& line);
void PrintError(const QString& line);
/// @}

}  // namespace cardwright::desktop
