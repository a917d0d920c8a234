// SPDX-License-Identifier: MIT
#include "cardwright/hosting/FormScriptHost.h"

#include "cardwright/hosting/InterruptSignal.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {

FormScriptHost::FormScriptHost(std::shared_ptr<ClassRegistry> restrictedClasses)
    : m_RestrictedClasses(std::move(restrictedClasses)),
      m_Permissions(Module().programFile, Module().program) {
  AddSafeClasses(m_Classes);
}

Ref<Object> FormScriptHost::CreateObject(std::u16string_view progid, std::u16string_view server) {
  if (!server.empty()) return ScriptHost::CreateObject(progid, server);
  const bool isRestricted = !m_Classes.Has(progid) && m_RestrictedClasses->Has(progid);
  if (isRestricted && m_Permissions.IsAllowed(progid, m_AllowUI)) return m_RestrictedClasses->Create(progid);
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

bool FormScriptHost::ShouldStop() {
  // Ctrl+C of a script file that drives the form.
  if (InterruptSignal::WasRaised()) return true;
  Desktop* const desktop = Module().desktop;
  if (!desktop || !desktop->BreakPressed()) return false;
  constexpr int kStyle = BoxStyle::YesNo | BoxStyle::Question | BoxStyle::SecondIsDefault;
  return desktop->ShowMessage(u"The script of the form is still running. Stop it?", kStyle, {}) ==
         BoxAnswer::Yes;
}

}  // namespace cardwright
