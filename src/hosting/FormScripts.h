#pragma once

namespace cardwright {

/// Gives the forms of the calling thread script engines, under the trust that a form's script has. To be
/// called before the first application object is made; without it forms run no scripts.
void ProvideFormScripts();

}  // namespace cardwright
