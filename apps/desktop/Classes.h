#pragma once

#include "hosting/ClassRegistry.h"

namespace cardwright::desktop {

/// Adds the public classes that scripts make by name and that need the toolkit or work with it.
void AddDesktopClasses(ClassRegistry& classes);

}  // namespace cardwright::desktop
