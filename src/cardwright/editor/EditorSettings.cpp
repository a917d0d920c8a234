// SPDX-License-Identifier: MIT
#include "cardwright/editor/EditorSettings.h"

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {

EditorSettings EditorSettings::OfEditor() {
  return {Module().settingsAppName, Module().settingsSectionEditor};
}
EditorSettings EditorSettings::OfGlobal() {
  return {Module().settingsAppName, Module().settingsSectionGlobal};
}
EditorSettings EditorSettings::OfDescription() {
  return {Module().settingsAppName, Module().settingsSectionOrvInfo};
}

Text EditorSettings::Read(std::u16string_view key, std::u16string_view fallback) const {
  if (!IsNamed() || !Module().desktop) return fallback;
  return Module().desktop->Settings().Get(m_App, m_Section, key, fallback);
}

float EditorSettings::ReadNumber(std::u16string_view key, float fallback) const {
  return BestEffortOr(fallback, [&] { return ToSingle(Variant(Read(key, ToText(Variant(fallback))))); });
}

void EditorSettings::Save(std::u16string_view key, std::u16string_view value) const {
  if (!IsNamed() || !Module().desktop) return;
  BestEffort([&] { Module().desktop->Settings().Save(m_App, m_Section, key, value); });
}

void EditorSettings::SaveNumber(std::u16string_view key, float value) const {
  Save(key, ToText(Variant(value)));
}

}  // namespace cardwright
