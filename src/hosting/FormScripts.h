#pragma once

#include "platform/ScriptLanguages.h"

namespace cardwright {

/// Gives the forms of the calling thread script engines of these languages, under the trust that a form's
/// script has. To be called before the first application object is made; without it forms run no scripts.
void ProvideFormScripts(ScriptLanguages languages);

}  // namespace cardwright
