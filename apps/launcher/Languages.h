// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/platform/ScriptLanguages.h"

namespace cardwright::app {

/// The languages of the program's scripts: VBScript, which is linked, and JScript, whose module is loaded for
/// its first engine. Making that engine raises error 48 if the module cannot be loaded.
ScriptLanguages Languages();

}  // namespace cardwright::app
