// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "cardwright/platform/Widget.h"

namespace cardwright {

/// What the widget colours apart.
enum class SyntaxElement : std::uint8_t { Text, Keywords, Remarks, Constants, Strings, Numbers, Variables };
inline constexpr int kSyntaxElementCount = 7;

struct ElementStyle {
  OleColor color = 0;
  bool bold = false;

  friend bool operator==(const ElementStyle&, const ElementStyle&) = default;
};

/// Where blanks go around a separator or an operator when a line is tidied. `None` adds none.
enum class BlankFormat : std::int32_t { BothSides = 0, Before = 1, After = 2, None = 3 };

/// What the widget knows of a language. Each list is one text of words with blanks between.
struct LexipadLanguage {
  bool changeCase = false;     ///< words of the lists take the list's spelling when a line is left
  bool caseSensitive = false;  ///< words of the lists are found in their own case only
  std::int32_t translateMode = 0;
  Text keywords;
  Text constants;
  Text remarks;            ///< what begins a remark up to the line's end
  Text remarkKeyword;      ///< the word that does
  Text remarkBlocksStart;  ///< what begins a remark over several lines; none where empty
  Text remarkBlocksEnd;
  Text stringQuotes;
  Text operators;
  BlankFormat operatorsFormat = BlankFormat::BothSides;
  Text separators;
  BlankFormat separatorsFormat = BlankFormat::BothSides;
};

/// Kind of the text at a position, by the number that `TokenClass` answers.
enum class TokenKind : std::int32_t {
  Code = 0,
  String = 1,
  Remark = 2,
  Keyword = 3,
  Constant = 4,
  Number = 5
};

/// Bits of a search's options.
namespace FindOption {
inline constexpr int WholeWord = 2, MatchCase = 4, KeepSelection = 8;
}

/// What a call of Reformat works on.
enum class ReformatMode : std::int32_t { Line = 1, Text = 2 };

/// Events of a syntax-colouring widget besides those of every widget. A key press raises them in the order
/// KeyDown, KeyPress, Change, SelChange, KeyUp.
class LexipadListener {
 public:
  virtual void OnSelChange() {}
  virtual void OnKeyUp(int /*keyCode*/, int /*shift*/) {}
  /// A line was read again. `position` is that of its first character.
  virtual void OnLineParsed(std::int32_t /*position*/, const Text& /*line*/) {}
  /// Around the lines of a text that is read again as a whole.
  virtual void OnBatchStart() {}
  virtual void OnBatchEnd() {}

 protected:
  ~LexipadListener() = default;
};

/// A text widget that colours a script by word lists. Positions count characters from 0, a line end being the
/// one or two characters that the text has there; whatever goes into the widget comes out the same.
class Lexipad : public Widget {
 public:
  Text TypeName() const override { return u"Lexipad"; }
  Text DisplayText() const override { return Contents(); }
  void SetDisplayText(const Text& text) override { SetContents(text); }

  virtual void SetLexipadListener(LexipadListener* listener) = 0;

  /// @name Text and selection. A position outside the text is the nearest one inside.
  /// @{
  virtual Text Contents() const = 0;
  virtual void SetContents(const Text& text) = 0;
  /// Length of the text, and a part of it without a copy of the whole; what lies outside is left out.
  virtual std::int32_t TextLength() const = 0;
  virtual Text TextRange(std::int32_t start, std::int32_t length) const = 0;
  virtual std::int32_t SelStart() const = 0;
  /// Leaves no selection.
  virtual void SetSelStart(std::int32_t position) = 0;
  virtual std::int32_t SelLength() const = 0;
  virtual void SetSelLength(std::int32_t length) = 0;
  virtual Text SelText() const = 0;
  /// Replaces the selection; the caret goes after the text.
  virtual void SetSelText(const Text& text) = 0;
  /// Colour of the selected text's first character, or of the one at the caret.
  virtual OleColor SelColor() const = 0;
  /// @}

  /// @name Lines
  /// @{
  /// The caret's line and column, both from 1.
  virtual std::int32_t CurrentLine() const = 0;
  virtual std::int32_t CurrentCol() const = 0;
  virtual std::int32_t LineCount() const = 0;
  /// Text of a line, counted from 1, without its end; "" for a line that is not there.
  virtual Text LineText(std::int32_t line) const = 0;
  /// Position of the start of a line, counted from 0; of the caret's line for -1, the text's end for a line
  /// that is not there.
  virtual std::int32_t LineIndex(std::int32_t line) const = 0;
  /// Line of a position, counted from 0; -1 for a position before the text.
  virtual std::int32_t LineFromChar(std::int32_t position) const = 0;
  /// Length of the line at a position, without its end.
  virtual std::int32_t LineLength(std::int32_t position) const = 0;
  /// Width of a tab in spaces.
  virtual std::int32_t TabSize() const = 0;
  /// @}

  /// Of the text at a position, or at the caret.
  virtual TokenKind TokenClass(std::optional<std::int32_t> position = {}) const = 0;
  /// Whether a character can be part of a name.
  virtual bool IsWordChar(char16_t c) const = 0;
  /// The caret's left top corner in pixels, in the client area.
  virtual std::int32_t CaretX() const = 0;
  virtual std::int32_t CaretY() const = 0;

  /// Stops painting until the call of EndUpdate that belongs to it; what is done between is one step of undo.
  virtual void BeginUpdate() = 0;
  virtual void EndUpdate() = 0;

  /// Position of the first match from `start` up to `end` (the text's end where there is none), or -1. The
  /// match is selected and shown, unless KeepSelection is among the options (FindOption).
  virtual std::int32_t Find(const Text& text, std::int32_t start, std::optional<std::int32_t> end,
                            int options) = 0;
  /// Moves the selection's edge, its start going backward and its end going forward, to the nearest character
  /// of `delimiters` or the text's end. With `extend` the selection grows, else it is left empty there.
  virtual void MoveToDelimiter(const Text& delimiters, bool forward, bool extend) = 0;
  /// Reads a line, counted from 1, or the whole text again: colours, and the case and blanks of lines that
  /// were edited.
  virtual void Reformat(ReformatMode mode, std::optional<std::int32_t> line = {}) = 0;

  virtual void Undo() = 0;
  virtual void Redo() = 0;
  virtual bool CanUndo() const = 0;
  virtual bool CanRedo() const = 0;
  virtual void EmptyUndoBuffer() = 0;

  /// @name Settings
  /// @{
  const LexipadLanguage& Language() const noexcept { return m_Language; }
  void SetLanguage(LexipadLanguage language);
  /// Plain text has the widget's ForeColor and the weight of its font.
  ElementStyle Style(SyntaxElement element) const;
  void SetStyle(SyntaxElement element, const ElementStyle& style);
  /// Characters that a line may have; what goes beyond is kept and not coloured.
  std::int32_t MaxLineLength() const noexcept { return m_MaxLineLength; }
  void SetMaxLineLength(std::int32_t length);
  /// Size that pictures are held to; -1 for any. Stored only: a script holds no pictures.
  std::int32_t ImageLockMaxWidth() const noexcept { return m_ImageLockMaxWidth; }
  void SetImageLockMaxWidth(std::int32_t pixels) noexcept { m_ImageLockMaxWidth = pixels; }
  std::int32_t ImageLockMaxHeight() const noexcept { return m_ImageLockMaxHeight; }
  void SetImageLockMaxHeight(std::int32_t pixels) noexcept { m_ImageLockMaxHeight = pixels; }
  /// @}

 protected:
  Lexipad();
  const MemberTable& Members() const override;
  /// Language, style or the length of coloured lines has changed.
  virtual void OnSettingsChanged() = 0;

 private:
  LexipadLanguage m_Language;
  ElementStyle m_Styles[kSyntaxElementCount];
  std::int32_t m_MaxLineLength = 1024;
  std::int32_t m_ImageLockMaxWidth = -1;
  std::int32_t m_ImageLockMaxHeight = -1;
};

/// Holds back painting for a scope. The widget may end meanwhile.
class PadUpdate {
 public:
  explicit PadUpdate(Lexipad& pad) : m_Pad(&pad) { pad.BeginUpdate(); }
  ~PadUpdate();
  PadUpdate(const PadUpdate&) = delete;
  PadUpdate& operator=(const PadUpdate&) = delete;

 private:
  const Ref<Lexipad> m_Pad;
};

}  // namespace cardwright
