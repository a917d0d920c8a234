#pragma once

#include "hosting/ClassRegistry.h"
#include "platform/ScriptEngine.h"

namespace cardwright {

/// What scripts inside form projects may do. A project comes from elsewhere, so its script reaches the host's
/// commands and the form's names, and of the machine nothing: no files, no programs, no classes but those
/// that only compute. Boxes are shown on the desktop of the form.
class FormScriptHost final : public ScriptHost {
 public:
  FormScriptHost() { AddHarmlessClasses(m_Classes); }

  /// Error 429 for any class that could reach the machine, and for any other computer.
  Ref<Object> CreateObject(std::u16string_view progid, std::u16string_view server) override;
  int ShowMessage(const Text& text, int style, const Text& title) override;
  Variant AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                  const Variant& y) override;

 private:
  ClassRegistry m_Classes;
};

}  // namespace cardwright
