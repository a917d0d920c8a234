// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "cardwright/editor/CommandCatalogue.h"
#include "cardwright/editor/EditorCore.h"

namespace cardwright {

/// The pop-up beside the caret: hidden, a list of the host's commands, or one line with the parameters of a
/// procedure of the script.
class Completion {
 public:
  Completion(EditorCore& core, const CommandCatalogue& catalogue);

  void Hide() { Show(false); }
  bool IsVisible() const { return m_Popup->IsVisible(); }
  bool IsListVisible() const { return m_List->IsVisible(); }

  /// A character is about to be typed into the text widget.
  void OnKeyPress(char16_t key);
  /// Looks up the word at the caret, as Ctrl+I asks.
  void OpenAtCaret();
  /// Writes a call of ORVExecute or ORVRequest with an empty command at the caret and opens its list.
  void InsertCall(std::u16string_view function);
  /// Follows what is typed after the place where the list was opened, after each key.
  void SelectTyped();
  /// The text widget's Down key; true where it went into the list.
  bool EnterList();
  /// Puts the selected entry into the text.
  void Accept();
  /// Closes the list and goes back to the text.
  void Leave();
  /// Keeps the pop-up beside the caret when the text scrolls.
  void FollowCaret();
  /// The pop-up was given another size.
  void OnResize();

  /// For an editor that ends: the pop-up goes out of sight without being hidden, and forgets its entries.
  void PutAside();

 private:
  void Show(bool show);
  void Open(const Text& word);
  void Place(const Text& signature);
  void ShowTip(const Text& text);
  float PopupX();
  float PopupY() const;
  Text WordBeforeCaret();
  Text CallAtCaret();
  void LeaveString();
  std::optional<Text> TypedText() const;
  std::size_t TypedEnd(std::u16string_view line, std::size_t anchor) const;
  Text WordDelimiters() const;

  EditorCore& m_Core;
  const CommandCatalogue& m_Catalogue;
  const Ref<PictureWidget> m_Popup;
  const Ref<CompletionListWidget> m_List;
  const Ref<CaptionWidget> m_Tip;
  std::vector<CompletionRow> m_Rows;  // of the list that is open
  std::int32_t m_AnchorPos = 0;       // after the character that opened the pop-up
  std::int32_t m_ListCaretPos = 0;    // caret with which the pop-up's left moves
  bool m_QuoteInsert = false;         // what is picked goes between quotes
  float m_Width = 4000;               // of the list, in twips, as the user left it
  float m_Height = 1700;
  std::int32_t m_CaretX = 0;  // in pixels, as seen last
  std::int32_t m_CaretY = 0;
  std::int32_t m_ListX = 0;  // of the caret when the list opened
};

/// The parameters of a procedure of the script as a tip shows them, or "" where there is no such procedure.
Text FindUserProcSignature(const Lexipad& pad, const Text& word);

}  // namespace cardwright
