#include "hosting/FormScriptHost.h"

#include "shared/ModuleState.h"

namespace cardwright {

Ref<Object> FormScriptHost::CreateObject(std::u16string_view progid, std::u16string_view server) {
  if (!server.empty()) return ScriptHost::CreateObject(progid, server);
  return m_Classes.Create(progid);
}

int FormScriptHost::ShowMessage(const Text& text, int style, const Text& title) {
  Desktop* const desktop = Module().desktop;
  return desktop ? desktop->ShowMessage(text, style, title) : ScriptHost::ShowMessage(text, style, title);
}

Variant FormScriptHost::AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                                const Variant& y) {
  Desktop* const desktop = Module().desktop;
  return desktop ? desktop->AskText(prompt, title, initial, x, y)
                 : ScriptHost::AskText(prompt, title, initial, x, y);
}

}  // namespace cardwright
