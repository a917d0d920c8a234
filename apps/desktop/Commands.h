#pragma once

#include <QStringList>

namespace cardwright::desktop {

/// @name The commands; each takes the words behind its name and gives the exit status.
/// @{
int RunFill(const QStringList& words);
int RunInfo(const QStringList& words);
int RunRender(const QStringList& words);
int RunOrv(const QStringList& words);
int RunCheck(const QStringList& words);
int RunDesign(const QStringList& words);
/// @}

}  // namespace cardwright::desktop
