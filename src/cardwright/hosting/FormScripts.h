// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/hosting/ClassRegistry.h"
#include "cardwright/platform/ScriptLanguages.h"

namespace cardwright {

/// Gives the forms of the calling thread script engines of these languages, with the rights of a form's
/// script (FormScriptHost). `restrictedClasses` are classes that the user may allow a form's script; the safe
/// ones are always allowed. To be called before the first application object is made: otherwise forms run no
/// scripts.
void ProvideFormScripts(ScriptLanguages languages, ClassRegistry restrictedClasses = {});

}  // namespace cardwright
