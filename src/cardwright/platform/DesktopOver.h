#pragma once

#include "cardwright/platform/Desktop.h"

namespace cardwright {

/// A desktop in front of another one, to which it hands on everything but what it does itself.
class DesktopOver : public Desktop {
 public:
  int ShowMessage(const Text& text, int style, const Text& title) override {
    return m_Below.ShowMessage(text, style, title);
  }
  Variant AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                  const Variant& y) override {
    return m_Below.AskText(prompt, title, initial, x, y);
  }
  bool IsAttended() const override { return m_Below.IsAttended(); }
  bool BreakPressed() override { return m_Below.BreakPressed(); }
  void Beep() override { m_Below.Beep(); }
  Ref<Widget> ActiveControl() const override { return m_Below.ActiveControl(); }
  OleColor ResolveColor(OleColor color) const override { return m_Below.ResolveColor(color); }
  bool IsWindow(std::int32_t handle) const override { return m_Below.IsWindow(handle); }
  void Start(const Text& commandLine) override { m_Below.Start(commandLine); }
  Text Digest(const Text& text) const override { return m_Below.Digest(text); }
  SettingsStore& Settings() override { return m_Below.Settings(); }

 protected:
  /// `below` outlives it.
  explicit DesktopOver(Desktop& below) : m_Below(below) {}

  Desktop& Below() const noexcept { return m_Below; }

 private:
  Desktop& m_Below;
};

}  // namespace cardwright
