// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/hosting/FormScripts.h"
#include "cardwright/jscript/JScriptEngine.h"
#include "cardwright/vbscript/VbScriptEngine.h"
#include "runtime/FormTest.h"

namespace cardwright {

inline ScriptLanguages BothLanguages() { return {vbscript::Language(), jscript::Language()}; }

/// A form with a field and a button, whose script runs in the engine that a program provides.
class FormScripts : public FormTest {
 protected:
  explicit FormScripts(std::string language = "VBScript") : m_Language(std::move(language)) {
    ProvideFormScripts(BothLanguages());
    Module().scriptControl = Module().makeScriptControl();
  }

  bool ReadScript(const std::string& script) {
    std::string lines = m_Language + "\r\n";
    for (const char c : script) lines += c == '\n' ? std::string("\r\n") : std::string(1, c);
    return ReadWhole({{"TextBox", "txtDepth", ""}, {"CommandButton", "cmdToday", ""}}, {}, lines);
  }
  void ClickToday() { QTest::mouseClick(&Native(u"cmdToday"), Qt::LeftButton); }
  Text Depth() { return Row(u"txtDepth", u"Text"); }
  std::string OnlyBox() {
    const Lines shown = boxes.Take();
    return shown.size() == 1 ? shown.front() : std::to_string(shown.size()) + " boxes";
  }

 private:
  const std::string m_Language;
};

/// A script that fails, and the text of its message box.
struct ScriptFailure {
  const char* title;
  const char* script;
  const char* box;
};

}  // namespace cardwright
