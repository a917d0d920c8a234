// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/platform/Desktop.h"

namespace cardwright {

/// Forwards each request to another desktop. A class derived from it answers those that it overrides.
class ForwardingDesktop : public Desktop {
 public:
  int ShowMessage(const Text& text, int style, const Text& title) override {
    return m_Next.ShowMessage(text, style, title);
  }
  Variant AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                  const Variant& y) override {
    return m_Next.AskText(prompt, title, initial, x, y);
  }
  bool IsAttended() const override { return m_Next.IsAttended(); }
  bool BreakPressed() override { return m_Next.BreakPressed(); }
  void Beep() override { m_Next.Beep(); }
  Ref<Widget> ActiveControl() const override { return m_Next.ActiveControl(); }
  OleColor ResolveColor(OleColor color) const override { return m_Next.ResolveColor(color); }
  bool IsWindow(std::int32_t handle) const override { return m_Next.IsWindow(handle); }
  void Start(const Text& commandLine) override { m_Next.Start(commandLine); }
  Text Digest(const Text& text) const override { return m_Next.Digest(text); }
  SettingsStore& Settings() override { return m_Next.Settings(); }

 protected:
  /// `next` outlives it.
  explicit ForwardingDesktop(Desktop& next) : m_Next(next) {}

  Desktop& Next() const noexcept { return m_Next; }

 private:
  Desktop& m_Next;
};

}  // namespace cardwright
