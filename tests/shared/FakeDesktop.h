// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <vector>

#include "cardwright/shared/ModuleState.h"

namespace cardwright {

/// A machine that keeps what is asked of it, installed for one scope.
class FakeDesktop final : public Desktop, private SettingsStore {
 public:
  FakeDesktop() { Module().desktop = this; }
  ~FakeDesktop() override { Module().desktop = nullptr; }

  int ShowMessage(const Text&, int, const Text&) override { return 1; }
  Variant AskText(const Text&, const Text&, const Text&, const Variant&, const Variant&) override {
    return {};
  }
  bool IsAttended() const override { return false; }
  bool BreakPressed() override { return false; }
  void Beep() override { ++beeps; }
  Ref<Widget> ActiveControl() const override { return active; }
  OleColor ResolveColor(OleColor color) const override {
    const auto found = systemColors.find(color);
    return found == systemColors.end() ? color : found->second;
  }
  bool IsWindow(std::int32_t) const override { return false; }
  void Start(const Text& commandLine) override {
    if (fails) Raise(ErrorNumber::FileNotFound);
    started.push_back(commandLine);
  }
  Text Digest(const Text& text) const override { return text; }
  SettingsStore& Settings() override { return *this; }

  Text Get(std::u16string_view app, std::u16string_view section, std::u16string_view key,
           std::u16string_view fallback) const override {
    const auto found = m_Settings.find(Path(app, section, key));
    return found == m_Settings.end() ? Text(fallback) : found->second;
  }
  void Save(std::u16string_view app, std::u16string_view section, std::u16string_view key,
            std::u16string_view value) override {
    m_Settings[Path(app, section, key)] = value;
  }

  int beeps = 0;
  bool fails = false;
  Ref<Widget> active;
  std::map<OleColor, OleColor> systemColors;  ///< any other answers itself
  std::vector<Text> started;

 private:
  static std::u16string Path(std::u16string_view app, std::u16string_view section, std::u16string_view key) {
    return std::u16string(app).append(u"/").append(section).append(u"/").append(key);
  }

  std::map<std::u16string, Text> m_Settings;
};

}  // namespace cardwright
