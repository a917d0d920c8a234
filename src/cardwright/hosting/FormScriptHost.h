// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "cardwright/hosting/ClassPermissions.h"
#include "cardwright/hosting/ClassRegistry.h"
#include "cardwright/platform/ScriptEngine.h"

namespace cardwright {

/// What the script of one form project may do. A project comes from a stranger, so its script has the host's
/// commands and the form's objects, but no files, no programs, and no classes except the safe ones and those
/// that the user allowed. Message boxes are shown on the form's desktop.
class FormScriptHost final : public ScriptHost {
 public:
  /// For the script that the thread is about to start. `restrictedClasses`: those that the user may allow.
  explicit FormScriptHost(std::shared_ptr<ClassRegistry> restrictedClasses);

  /// Error 429 for a class that is not allowed, and for any other computer.
  Ref<Object> CreateObject(std::u16string_view progid, std::u16string_view server) override;
  int ShowMessage(const Text& text, int style, const Text& title) override;
  Variant AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                  const Variant& y) override;
  void SetAllowUI(bool allowed) override { m_AllowUI = allowed; }
  /// Asks the user after Break was pressed.
  bool ShouldStop() override;

 private:
  const std::shared_ptr<ClassRegistry> m_RestrictedClasses;
  ClassRegistry m_Classes;
  ClassPermissions m_Permissions;
  bool m_AllowUI = true;
};

}  // namespace cardwright
