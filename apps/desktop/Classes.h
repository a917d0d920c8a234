// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/hosting/ClassRegistry.h"

namespace cardwright::desktop {

/// Adds the public classes that scripts create by identifier and that use forms.
void AddDesktopClasses(ClassRegistry& classes);
/// The classes that users can permit to the script of a form: files and data. No class that creates or drives
/// forms.
ClassRegistry RestrictedClasses();

}  // namespace cardwright::desktop
