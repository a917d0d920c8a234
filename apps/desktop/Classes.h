#pragma once

#include "cardwright/hosting/ClassRegistry.h"

namespace cardwright::desktop {

/// Adds the public classes that scripts make by name and that need the toolkit or work with it.
void AddDesktopClasses(ClassRegistry& classes);
/// The classes that users may allow the script of a form: files, and what holds data. None that makes or
/// drives forms.
ClassRegistry RestrictedClasses();

}  // namespace cardwright::desktop
