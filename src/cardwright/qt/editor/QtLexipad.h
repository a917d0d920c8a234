// SPDX-License-Identifier: MIT
#pragma once

#include <QTextCursor>

#include "cardwright/editor/Lexipad.h"
#include "cardwright/qt/editor/DocumentText.h"
#include "cardwright/qt/widgets/QtWidget.h"

class QTextBlock;

namespace cardwright::qt {

class CodeEdit;

/// The syntax-colouring text widget on the toolkit's plain text editor.
///
/// While an update is held (BeginUpdate), selections move a cursor of the adapter's own, and the widget
/// follows once, at the end. Events of one operation or of one act of the user are raised together when it is
/// over: the change, then the selection, then the line that was left.
class QtLexipad final : public QtWidget<Lexipad> {
 public:
  explicit QtLexipad(WidgetPlace place);

  Text TypeName() const override { return Lexipad::TypeName(); }
  void SetForeColor(OleColor color) override;
  void SetLexipadListener(LexipadListener* listener) override { m_PadListener = listener; }

  Text Contents() const override;
  void SetContents(const Text& text) override;
  std::int32_t TextLength() const override;
  Text TextRange(std::int32_t start, std::int32_t length) const override;
  std::int32_t SelStart() const override;
  void SetSelStart(std::int32_t position) override;
  std::int32_t SelLength() const override;
  void SetSelLength(std::int32_t length) override;
  Text SelText() const override;
  void SetSelText(const Text& text) override;
  OleColor SelColor() const override;

  std::int32_t CurrentLine() const override;
  std::int32_t CurrentCol() const override;
  std::int32_t LineCount() const override;
  Text LineText(std::int32_t line) const override;
  std::int32_t LineIndex(std::int32_t line) const override;
  std::int32_t LineFromChar(std::int32_t position) const override;
  std::int32_t LineLength(std::int32_t position) const override;
  std::int32_t TabSize() const override;

  TokenKind TokenClass(std::optional<std::int32_t> position) const override;
  bool IsWordChar(char16_t c) const override;
  std::int32_t CaretX() const override;
  std::int32_t CaretY() const override;

  void BeginUpdate() override;
  void EndUpdate() override;
  std::int32_t Find(const Text& text, std::int32_t start, std::optional<std::int32_t> end,
                    int options) override;
  void MoveToDelimiter(const Text& delimiters, bool forward, bool extend) override;
  void Reformat(ReformatMode mode, std::optional<std::int32_t> line) override;

  void Undo() override;
  void Redo() override;
  bool CanUndo() const override;
  bool CanRedo() const override;
  void EmptyUndoBuffer() override;

  CodeEdit& Edit() const;

 private:
  /// Raises the events of what is done in a scope at its end.
  class EventScope {
   public:
    explicit EventScope(QtLexipad& pad) : m_Self(&pad), m_Pad(pad) { pad.BeginEvents(); }
    ~EventScope() { m_Pad.EndEvents(); }
    EventScope(const EventScope&) = delete;
    EventScope& operator=(const EventScope&) = delete;

   private:
    const Ref<Widget> m_Self;
    QtLexipad& m_Pad;
  };

  void OnSettingsChanged() override;
  void CollectColors(QPalette& own, const QPalette& inherited) const override;
  void OnFontApplied() override;
  bool TakesEnter() const override { return true; }

  template <class Call>
  void NotifyPad(Call&& call) {
    if (!m_PadListener) return;
    const HandlerScope scope(*this);
    BestEffort([&] { call(*m_PadListener); });
  }
  void BeginEvents() { ++m_EventDepth; }
  void EndEvents();
  void TellEvents();
  const QTextCursor& Cursor() const;
  void SetCursor(const QTextCursor& cursor);
  int DelimiterBefore(int place, const Text& delimiters) const;
  int DelimiterAfter(int place, const Text& delimiters) const;
  void RememberLine(const QTextBlock& block);
  void LeaveLine();
  void ParseLine(const QTextBlock& block);
  void ParseAll();
  void TidyLine(const QTextBlock& block);

  CodeEdit* m_Edit;
  DocumentText m_Text;
  LexipadListener* m_PadListener = nullptr;
  QTextCursor m_HeldCursor;  // while an update is held
  QTextCursor m_LeftLine;    // start of the line that the caret was in last
  int m_UpdateDepth = 0;
  int m_EventDepth = 0;
  bool m_HasChanged = false;
  bool m_HasMoved = false;
  bool m_IsTelling = false;
  bool m_IsParsing = false;
};

}  // namespace cardwright::qt
