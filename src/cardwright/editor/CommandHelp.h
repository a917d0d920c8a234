// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/editor/CommandCatalogue.h"
#include "cardwright/editor/EditorCore.h"

namespace cardwright {

/// The window that describes the command under the caret, and the check button that shows it.
class CommandHelp {
 public:
  CommandHelp(EditorCore& core, const CommandCatalogue& catalogue) : m_Core(core), m_Catalogue(catalogue) {}

  /// Describes what is selected, or the word at the caret.
  void FollowCaret();
  /// Describes a command by the text of its row in the pop-up's list.
  void Describe(std::u16string_view word);
  /// Shows or hides the window as the check button says.
  void ApplyButton();

  /// @name The user's settings for the window: whether it is shown, and where
  /// @{
  void ReadPlace();
  void SavePlace() const;
  void SaveVisible() const;
  void ShowIfWanted();
  /// @}

 private:
  Ref<ToolButton> Button() const;
  Text WordAtCaret() const;

  EditorCore& m_Core;
  const CommandCatalogue& m_Catalogue;
};

}  // namespace cardwright
