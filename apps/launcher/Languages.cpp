// SPDX-License-Identifier: MIT
#include "launcher/Languages.h"

#include "cardwright/vbscript/VbScriptEngine.h"
#include "launcher/Modules.h"

namespace cardwright::app {
namespace {

const ScriptLanguage& JScript() {
  static const auto& language =
      *static_cast<const ScriptLanguage*>(LoadModule("jscript", "cardwrightJScriptLanguage"));
  return language;
}

}  // namespace

ScriptLanguages Languages() {
  return {vbscript::Language(),
          {.name = u"JScript",
           .extension = u"js",
           .makeEngine = [](ScriptHost& host) { return JScript().makeEngine(host); },
           .check = [](std::u16string_view source) { return JScript().check(source); },
           .disassemble = nullptr}};
}

}  // namespace cardwright::app
