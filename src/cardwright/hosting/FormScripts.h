#pragma once

#include "cardwright/hosting/ClassRegistry.h"
#include "cardwright/platform/ScriptLanguages.h"

namespace cardwright {

/// Gives the forms of the calling thread script engines of these languages, under the trust that a form's
/// script has. `onLeave` are classes that a user may allow a form's script, beside those that every script
/// may use. To be called before the first application object is made; without it forms run no scripts.
void ProvideFormScripts(ScriptLanguages languages, ClassRegistry onLeave = {});

}  // namespace cardwright
