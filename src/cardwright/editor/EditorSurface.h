// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>

#include "cardwright/editor/Lexipad.h"
#include "cardwright/editor/ToolbarWidget.h"
#include "cardwright/platform/ScreenRect.h"
#include "cardwright/platform/Surface.h"

namespace cardwright {

class SyntaxOptions;

/// One row of the pop-up's list.
struct CompletionRow {
  Text text;
  bool isRequest = false;  ///< shows the icon of a request ("function"), else that of a command ("method")
};

/// What the user does in the pop-up's list. Rows count from 1.
class CompletionListListener {
 public:
  /// A character typed while the list has the keyboard, U+001B for Esc and U+000D for Enter among them.
  virtual void OnListKeyPress(char16_t /*key*/) {}
  virtual void OnListDoubleClick() {}
  virtual void OnListItemClick(int /*row*/) {}
  virtual void OnListGotFocus() {}
  /// The mouse is over a row.
  virtual void OnListHover(int /*row*/) {}

 protected:
  ~CompletionListListener() = default;
};

/// The list of the pop-up, a list view with small icons.
class CompletionListWidget : public ListViewWidget {
 public:
  /// Replaces all rows; none is selected then.
  virtual void SetRows(std::span<const CompletionRow> rows) = 0;
  /// Icon key of a row: "method" or "function".
  virtual Text RowIcon(int row) const = 0;
  virtual void EnsureVisible(int row) = 0;
  virtual void SetCompletionListener(CompletionListListener* listener) = 0;
};

/// The window that describes a command. Its place is kept by the surface's listener.
class DescriptionWindow {
 public:
  virtual ~DescriptionWindow() = default;

  virtual Text Caption() const = 0;
  virtual Text Category() const = 0;
  virtual void SetCategory(const Text& category) = 0;
  virtual Text Syntax() const = 0;
  virtual void SetSyntax(const Text& syntax) = 0;
  virtual Text Tip() const = 0;
  virtual void SetTip(const Text& tip) = 0;
  /// In twips, on the screen.
  virtual ScreenRect Place() const = 0;
  virtual void SetPlace(const ScreenRect& twips) = 0;
  /// Shows it beside the control's window, which keeps the keyboard, or hides it.
  virtual void SetVisible(bool visible) = 0;
  virtual bool IsVisible() const = 0;
  virtual bool IsActive() const = 0;
};

/// What the user asked the search dialog for.
struct SearchRequest {
  Text text;
  bool wholeWord = false;
  bool matchCase = false;
  int direction = 0;  ///< 0 all, 1 down, 2 up
};

/// Events of the toolkit around an editor, besides those that its widgets raise.
class EditorListener {
 public:
  /// A button of the toolbar was pressed by the user.
  virtual void OnToolButton(const Text& /*key*/) {}
  /// One tick of the timer that follows the caret.
  virtual void OnTimer() {}
  virtual void OnSurfaceResize() {}
  virtual void OnSurfaceGotFocus() {}
  /// The keyboard left the control and all that belongs to it.
  virtual void OnSurfaceLostFocus() {}
  /// The control is seen for the first time.
  virtual void OnFirstShow() {}
  virtual void OnPopupResize() {}
  virtual void OnDescriptionResize() {}

 protected:
  ~EditorListener() = default;
};

/// What the script editor asks of the toolkit. Geometry of its widgets is in twips. The widgets live as long
/// as somebody holds them and answer with error 91 once the surface has ended.
class EditorSurface {
 public:
  virtual ~EditorSurface() = default;

  virtual void SetListener(EditorListener* listener) = 0;

  /// @name Widgets
  /// @{
  virtual Ref<Lexipad> Pad() = 0;                     ///< tecEditor
  virtual Ref<ToolbarWidget> Toolbar() = 0;           ///< tbrMenu
  virtual Ref<ComboWidget> ControlsCombo() = 0;       ///< cboCtrls
  virtual Ref<ComboWidget> EventsCombo() = 0;         ///< cboEvents
  virtual Ref<CaptionWidget> PositionLabel() = 0;     ///< lblLineCol
  virtual Ref<CaptionWidget> LanguageLabel() = 0;     ///< lblLang
  virtual Ref<PictureWidget> Popup() = 0;             ///< picPropMethod
  virtual Ref<CompletionListWidget> PopupList() = 0;  ///< lvwElenco
  virtual Ref<CaptionWidget> PopupTip() = 0;          ///< lblTooltip
  virtual DescriptionWindow& Description() = 0;       ///< frmOrvDesc
  /// All of them that carry a message number in their tag.
  virtual std::vector<Ref<Object>> TaggedWidgets() = 0;
  /// @}

  /// Puts the widgets where a change of size or of the toolbar's visibility wants them.
  virtual void LayOut() = 0;
  /// Size of the control's inside in twips.
  virtual float Width() const = 0;
  virtual float Height() const = 0;
  /// Width of a text in the pop-up's tip, and the height of a line of text, in twips.
  virtual float TextWidth(const Text& text) const = 0;
  virtual float TextHeight() const = 0;
  /// Distance from the control's top to that of the container that the text widget is in.
  virtual float PadOffset() const = 0;

  /// Gives the pop-up a frame by which it can be resized, or takes it away.
  virtual void SetPopupSizable(bool sizable) = 0;
  virtual void SetTimer(bool runs) = 0;
  /// Whether the control is used and not laid out by its container.
  virtual bool IsRunning() const = 0;
  /// Whether the keyboard is in the pop-up.
  virtual bool IsPopupFocused() const = 0;
  /// Frame of the host's window on the screen, in twips; empty where there is none.
  virtual ScreenRect HostFrame() const = 0;
  virtual Ref<HostWindow> Host() const = 0;
  /// Gives the keyboard back to the host's window.
  virtual void FocusHost() = 0;

  /// @name Dialogs. Each is modal; the surface may end meanwhile.
  /// @{
  /// The search dialog, which keeps what was looked for until UnloadSearch. `text` replaces what is in
  /// its field where it is not empty. None where it was left without OK or without a text.
  virtual std::optional<SearchRequest> AskSearch(const Text& text) = 0;
  virtual void UnloadSearch() = 0;
  virtual void ShowOptions(SyntaxOptions& options) = 0;
  /// @}

  /// Tells the container that what it keeps for the control under this name has changed.
  virtual void TellPropertyChanged(std::u16string_view name) = 0;
};

}  // namespace cardwright
