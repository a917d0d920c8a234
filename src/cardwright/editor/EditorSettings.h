// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Text.h"

namespace cardwright {

/// One section of the user's settings, under the names that the host has given. Without a name for the
/// application and for the section nothing is read and nothing is saved.
class EditorSettings {
 public:
  /// Fonts and colours.
  static EditorSettings OfEditor();
  /// What all forms share: the language chosen last.
  static EditorSettings OfGlobal();
  /// The window that describes a command.
  static EditorSettings OfDescription();

  bool IsNamed() const noexcept { return !m_App.IsEmpty() && !m_Section.IsEmpty(); }
  Text Read(std::u16string_view key, std::u16string_view fallback) const;
  /// The value as a number; `fallback` where it is none.
  float ReadNumber(std::u16string_view key, float fallback) const;
  void Save(std::u16string_view key, std::u16string_view value) const;
  void SaveNumber(std::u16string_view key, float value) const;

 private:
  EditorSettings(Text app, Text section) : m_App(std::move(app)), m_Section(std::move(section)) {}

  Text m_App;
  Text m_Section;
};

}  // namespace cardwright
