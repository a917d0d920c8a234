// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "cardwright/platform/Desktop.h"

namespace cardwright::qt {

/// The user's desktop by way of the toolkit; needs a QApplication.
class QtDesktop : public Desktop {
 public:
  QtDesktop();
  ~QtDesktop() override;

  /// Knows the platform's other button sets too: Abort 3, Retry 4, Ignore 5. A box that is closed is answered
  /// with Cancel or, where it has none, No or its only button.
  int ShowMessage(const Text& text, int style, const Text& title) override;
  Variant AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                  const Variant& y) override;
  /// False without a display.
  bool IsAttended() const override;
  /// Makes IsAttended false even with a display.
  void SetUnattended() noexcept { m_IsUnattended = true; }
  bool BreakPressed() override;
  void Beep() override;
  Ref<Widget> ActiveControl() const override;
  OleColor ResolveColor(OleColor color) const override;
  bool IsWindow(std::int32_t handle) const override;
  void Start(const Text& commandLine) override;
  Text Digest(const Text& text) const override;
  SettingsStore& Settings() override { return *m_Settings; }

 private:
  bool m_IsUnattended = false;
  const std::unique_ptr<SettingsStore> m_Settings;
};

}  // namespace cardwright::qt
