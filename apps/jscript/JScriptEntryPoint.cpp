// SPDX-License-Identifier: MIT
#include "cardwright/jscript/JScriptEngine.h"

extern "C" __attribute__((visibility("default"))) const cardwright::ScriptLanguage cardwrightJScriptLanguage;
const cardwright::ScriptLanguage cardwrightJScriptLanguage = cardwright::jscript::Language();
