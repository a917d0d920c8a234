#pragma once

#include "cardwright/platform/ScriptLanguages.h"

namespace cardwright::app {

/// The languages of the program's scripts: VBScript, which it holds, and JScript, whose module is loaded when
/// its first engine is made. Error 48 there where it cannot be loaded.
ScriptLanguages Languages();

}  // namespace cardwright::app
