#pragma once

#include <memory>

#include "cardwright/hosting/ClassPermissions.h"
#include "cardwright/hosting/ClassRegistry.h"
#include "cardwright/platform/ScriptEngine.h"

namespace cardwright {

/// What the script of one form project may do. A project comes from elsewhere, so its script reaches the
/// host's commands and the form's names, and of the machine nothing: no files, no programs, no classes but
/// those that only compute and those that the user has allowed it. Boxes are shown on the desktop of the
/// form.
class FormScriptHost final : public ScriptHost {
 public:
  /// For the script that the thread is about to start. `onLeave`: the classes that users may allow.
  explicit FormScriptHost(std::shared_ptr<ClassRegistry> onLeave);

  /// Error 429 for a class that could reach the machine and is not allowed, and for any other computer.
  Ref<Object> CreateObject(std::u16string_view progid, std::u16string_view server) override;
  int ShowMessage(const Text& text, int style, const Text& title) override;
  Variant AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                  const Variant& y) override;
  void SetAllowUI(bool allowed) override { m_AllowUI = allowed; }
  /// Asks the user, where they have pressed Break.
  bool ShouldStop() override;

 private:
  const std::shared_ptr<ClassRegistry> m_OnLeave;
  ClassRegistry m_Classes;
  ClassPermissions m_Permissions;
  bool m_AllowUI = true;
};

}  // namespace cardwright
