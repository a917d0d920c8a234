// SPDX-License-Identifier: MIT
#include "cardwright/qt/editor/QtLexipad.h"

#include <QTextBlock>
#include <algorithm>
#include <utility>

#include "cardwright/editor/LineTokens.h"
#include "cardwright/qt/editor/CodeEdit.h"
#include "cardwright/qt/editor/ReadableColor.h"
#include "cardwright/qt/values/Colors.h"
#include "cardwright/qt/values/Keys.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/WidgetKind.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kLexipad = [] {
  WidgetKind kind = MakeFieldKind(u"Lexipad", MouseUse::All, ClickSource::MouseRelease);
  kind.foreColor = 0;
  return kind;
}();

bool IsWholeWord(std::u16string_view text, std::size_t at, std::size_t size) {
  const bool beginsWord = at == 0 || !IsNameCharacter(text[at - 1]);
  const bool endsWord = at + size >= text.size() || !IsNameCharacter(text[at + size]);
  return beginsWord && endsWord;
}

std::size_t FindText(std::u16string_view text, std::u16string_view what, std::size_t from, int options) {
  for (;;) {
    const std::size_t at = (options & FindOption::MatchCase) != 0 ? cardwright::Find(text, what, from)
                                                                  : FindNoCase(text, what, from);
    if (at == text.npos || (options & FindOption::WholeWord) == 0 || IsWholeWord(text, at, what.size()))
      return at;
    from = at + 1;
  }
}

TokenKind TokenKindOf(LexemeKind kind) {
  switch (kind) {
    case LexemeKind::String: return TokenKind::String;
    case LexemeKind::Remark: return TokenKind::Remark;
    case LexemeKind::Keyword: return TokenKind::Keyword;
    case LexemeKind::Constant: return TokenKind::Constant;
    case LexemeKind::Number: return TokenKind::Number;
    default: return TokenKind::Code;
  }
}

}  // namespace

/// Tells the events of what is done in a scope at its end.
class QtLexipad::EventScope {
 public:
  explicit EventScope(QtLexipad& pad) : m_Self(&pad), m_Pad(pad) { pad.BeginEvents(); }
  ~EventScope() { m_Pad.EndEvents(); }
  EventScope(const EventScope&) = delete;
  EventScope& operator=(const EventScope&) = delete;

 private:
  const Ref<Widget> m_Self;
  QtLexipad& m_Pad;
};

QtLexipad::QtLexipad(WidgetPlace place)
    : QtWidget(kLexipad, place), m_Edit(new CodeEdit(place.parent)), m_Text(*m_Edit->document()) {
  Adopt(*m_Edit);
  WatchPart(*m_Edit->viewport());
  RememberLine(m_Edit->document()->begin());
  QObject::connect(m_Edit->document(), &QTextDocument::contentsChange, this,
                   [this](int, int removed, int added) {
                     m_Text.Forget();
                     if (removed != 0 || added != 0) m_HasChanged = true;
                   });
  QObject::connect(m_Edit, &QPlainTextEdit::textChanged, this, [this] {
    if (m_EventDepth == 0) TellEvents();
  });
  const auto onMoved = [this] {
    m_HasMoved = true;
    if (m_EventDepth == 0)
      QMetaObject::invokeMethod(
          this, [this] { TellEvents(); }, Qt::QueuedConnection);
  };
  QObject::connect(m_Edit, &QPlainTextEdit::cursorPositionChanged, this, onMoved);
  QObject::connect(m_Edit, &QPlainTextEdit::selectionChanged, this, onMoved);
  QObject::connect(m_Edit, &CodeEdit::InputBegins, this, [this] { BeginEvents(); });
  QObject::connect(m_Edit, &CodeEdit::InputEnds, this, [this] { EndEvents(); });
  QObject::connect(m_Edit, &CodeEdit::KeyReleased, this, [this](int key, Qt::KeyboardModifiers modifiers) {
    const QKeyEvent event(QEvent::KeyRelease, key, modifiers);
    NotifyPad([&](LexipadListener& l) { l.OnKeyUp(VirtualKey(event), ShiftKeys(modifiers)); });
  });
  OnSettingsChanged();
}

CodeEdit& QtLexipad::Edit() const {
  RequireAlive();
  return *m_Edit;
}

template <class Call>
void QtLexipad::NotifyPad(Call&& call) {
  if (!m_PadListener) return;
  const HandlerScope scope(*this);
  Attempt([&] { call(*m_PadListener); });
}

void QtLexipad::EndEvents() {
  if (--m_EventDepth == 0 && Native()) TellEvents();
}

// A handler that changes the text or the selection has its own raised after it, in the same order.
void QtLexipad::TellEvents() {
  if (m_IsTelling || !Native() || m_UpdateDepth > 0) return;
  const Ref<Widget> keepAlive(&Self());
  m_IsTelling = true;
  while (Native() && (m_HasChanged || m_HasMoved)) {
    if (std::exchange(m_HasChanged, false)) NotifyChange();
    if (std::exchange(m_HasMoved, false)) {
      NotifyPad([](LexipadListener& listener) { listener.OnSelChange(); });
      if (Native()) LeaveLine();
    }
  }
  m_IsTelling = false;
}

void QtLexipad::SetForeColor(OleColor color) {
  QtWidget::SetForeColor(color);
  OnSettingsChanged();
}

void QtLexipad::CollectColors(QPalette& own, const QPalette& inherited) const {
  WidgetCore::CollectColors(own, inherited);
  const QColor base = own.isBrushSet(QPalette::Active, QPalette::Base) ? own.color(QPalette::Base)
                                                                       : inherited.color(QPalette::Base);
  const QColor shown = ReadableOn(base, ToQColor(m_State.foreColor, inherited));
  own.setColor(QPalette::Active, QPalette::Text, shown);
  own.setColor(QPalette::Inactive, QPalette::Text, shown);
}

void QtLexipad::OnFontApplied() { m_Edit->ApplyFont(); }

void QtLexipad::OnSettingsChanged() {
  if (!Native()) return;
  ElementStyles styles;
  for (int i = 0; i < kSyntaxElementCount; ++i)
    styles[static_cast<std::size_t>(i)] = Style(static_cast<SyntaxElement>(i));
  m_Edit->SetLanguage(Language(), styles, MaxLineLength());
}

const QTextCursor& QtLexipad::Cursor() const {
  RequireAlive();
  if (m_UpdateDepth == 0) const_cast<QtLexipad*>(this)->m_HeldCursor = m_Edit->textCursor();
  return m_HeldCursor;
}

void QtLexipad::SetCursor(const QTextCursor& cursor) {
  if (m_UpdateDepth > 0) {
    m_HeldCursor = cursor;
    return;
  }
  const EventScope events(*this);
  m_Edit->setTextCursor(cursor);
}

Text QtLexipad::Contents() const { return Live(m_Text).Get(); }

void QtLexipad::SetContents(const Text& text) {
  RequireAlive();
  const EventScope events(*this);
  m_Edit->SetTracksEdits(false);
  m_Text.Set(text);
  m_Edit->SetTracksEdits(true);
  RememberLine(m_Edit->document()->begin());
  m_HeldCursor = QTextCursor(m_Edit->document());
  m_Edit->setTextCursor(m_HeldCursor);
  m_HasChanged = true;
  m_HasMoved = true;
  ParseAll();
}

std::int32_t QtLexipad::TextLength() const { return Live(m_Text).Length(); }
Text QtLexipad::TextRange(std::int32_t start, std::int32_t length) const {
  return Live(m_Text).GetRange(start, length);
}

std::int32_t QtLexipad::SelStart() const { return m_Text.ToText(Cursor().selectionStart()); }

void QtLexipad::SetSelStart(std::int32_t position) {
  QTextCursor cursor = Cursor();
  cursor.setPosition(m_Text.ToDocument(position));
  SetCursor(cursor);
}

std::int32_t QtLexipad::SelLength() const {
  return m_Text.ToText(Cursor().selectionEnd()) - m_Text.ToText(Cursor().selectionStart());
}

void QtLexipad::SetSelLength(std::int32_t length) {
  if (length < 0) Raise(ErrorNumber::InvalidPropertyValue);
  QTextCursor cursor = Cursor();
  const int start = cursor.selectionStart();
  const std::int64_t end = std::int64_t{SelStart()} + length;
  cursor.setPosition(start);
  cursor.setPosition(
      m_Text.ToDocument(static_cast<std::int32_t>(std::min<std::int64_t>(end, m_Text.Length()))),
      QTextCursor::KeepAnchor);
  SetCursor(cursor);
}

Text QtLexipad::SelText() const { return m_Text.GetRange(SelStart(), SelLength()); }

void QtLexipad::SetSelText(const Text& text) {
  QTextCursor cursor = Cursor();
  const EventScope events(*this);
  m_Text.Insert(cursor, text);
  SetCursor(cursor);
}

OleColor QtLexipad::SelColor() const {
  const QTextBlock block = m_Edit->document()->findBlock(Cursor().selectionStart());
  const int column = Cursor().selectionStart() - block.position();
  return Style(m_Edit->ElementAt(block, column)).color;
}

std::int32_t QtLexipad::CurrentLine() const { return Cursor().blockNumber() + 1; }
std::int32_t QtLexipad::CurrentCol() const { return Cursor().positionInBlock() + 1; }
std::int32_t QtLexipad::LineCount() const { return Live(m_Edit)->blockCount(); }

Text QtLexipad::LineText(std::int32_t line) const {
  return m_Text.LineText(Live(m_Edit)->document()->findBlockByNumber(line - 1));
}

std::int32_t QtLexipad::LineIndex(std::int32_t line) const {
  const QTextBlock block =
      m_Edit->document()->findBlockByNumber(line == -1 ? Cursor().blockNumber() : Live(line));
  return block.isValid() ? m_Text.ToText(block.position()) : m_Text.Length();
}

std::int32_t QtLexipad::LineFromChar(std::int32_t position) const {
  if (position < 0) return -1;
  return m_Edit->document()->findBlock(Live(m_Text).ToDocument(position)).blockNumber();
}

std::int32_t QtLexipad::LineLength(std::int32_t position) const {
  return m_Edit->document()->findBlock(Live(m_Text).ToDocument(position)).length() - 1;
}

std::int32_t QtLexipad::TabSize() const { return Live(m_Edit)->TabBlanks(); }

// A place between two characters is inside a piece where both belong to it, or where nothing closes the
// piece.
TokenKind QtLexipad::TokenClass(std::optional<std::int32_t> position) const {
  const int place = position ? Live(m_Text).ToDocument(*position) : Cursor().position();
  const QTextBlock block = m_Edit->document()->findBlock(place);
  const auto column = static_cast<std::size_t>(place - block.position());
  const LineTokens tokens = m_Edit->Words().Read(ViewOf(block.text()), m_Edit->BeginsInRemark(block));
  for (const Lexeme& lexeme : tokens.lexemes) {
    const std::size_t end = lexeme.start + lexeme.length;
    if (column > lexeme.start && (column < end || (lexeme.isOpen && column == end)))
      return TokenKindOf(lexeme.kind);
  }
  return TokenKind::Code;
}

bool QtLexipad::IsWordChar(char16_t c) const { return IsNameCharacter(c); }

std::int32_t QtLexipad::CaretX() const {
  const QPoint at = Live(m_Edit)->cursorRect().topLeft();
  return m_Edit->viewport()->mapTo(m_Edit, at).x();
}

std::int32_t QtLexipad::CaretY() const {
  const QPoint at = Live(m_Edit)->cursorRect().topLeft();
  return m_Edit->viewport()->mapTo(m_Edit, at).y();
}

void QtLexipad::BeginUpdate() {
  m_HeldCursor = Cursor();
  if (m_UpdateDepth++ > 0) return;
  BeginEvents();
  QTextCursor(m_Edit->document()).beginEditBlock();
}

void QtLexipad::EndUpdate() {
  if (m_UpdateDepth == 0 || --m_UpdateDepth > 0) return;
  const Ref<Widget> keepAlive(&Self());
  if (Native()) {
    QTextCursor(m_Edit->document()).endEditBlock();
    if (m_HeldCursor != m_Edit->textCursor() || m_HeldCursor.anchor() != m_Edit->textCursor().anchor())
      m_Edit->setTextCursor(m_HeldCursor);
  }
  EndEvents();
}

std::int32_t QtLexipad::Find(const Text& text, std::int32_t start, std::optional<std::int32_t> end,
                             int options) {
  RequireAlive();
  if (text.IsEmpty()) return -1;
  const Text all = m_Text.Get();
  std::u16string_view searched = all;
  if (end) searched = searched.substr(0, static_cast<std::size_t>(std::max(*end, 0)));
  const auto from = static_cast<std::size_t>(std::max(start, 0));
  if (from > searched.size()) return -1;
  const std::size_t at = FindText(searched, text, from, options);
  if (at == searched.npos) return -1;
  const auto hit = static_cast<std::int32_t>(at);
  if ((options & FindOption::KeepSelection) == 0) {
    QTextCursor cursor = Cursor();
    cursor.setPosition(m_Text.ToDocument(hit));
    cursor.setPosition(m_Text.ToDocument(hit + static_cast<std::int32_t>(text.Size())),
                       QTextCursor::KeepAnchor);
    SetCursor(cursor);
  }
  return hit;
}

// Whole lines are skipped where no delimiter ends a line.
int QtLexipad::DelimiterBefore(int place, const Text& delimiters) const {
  const bool stopsAtLine = delimiters.View().find(m_Text.LineEnd().back()) != std::u16string_view::npos;
  QTextBlock block = m_Edit->document()->findBlock(place);
  int column = place - block.position();
  for (;;) {
    const QString text = block.text();
    while (column > 0 && delimiters.View().find(text[column - 1].unicode()) == std::u16string_view::npos)
      --column;
    if (column > 0 || stopsAtLine || !block.previous().isValid()) return block.position() + column;
    block = block.previous();
    column = block.length() - 1;
  }
}

int QtLexipad::DelimiterAfter(int place, const Text& delimiters) const {
  const bool stopsAtLine = delimiters.View().find(m_Text.LineEnd().front()) != std::u16string_view::npos;
  QTextBlock block = m_Edit->document()->findBlock(place);
  int column = place - block.position();
  for (;;) {
    const QString text = block.text();
    const auto length = static_cast<int>(text.size());
    while (column < length && delimiters.View().find(text[column].unicode()) == std::u16string_view::npos)
      ++column;
    if (column < length || stopsAtLine || !block.next().isValid()) return block.position() + column;
    block = block.next();
    column = 0;
  }
}

void QtLexipad::MoveToDelimiter(const Text& delimiters, bool forward, bool extend) {
  QTextCursor cursor = Cursor();
  const int start = cursor.selectionStart();
  const int end = cursor.selectionEnd();
  const int edge = forward ? DelimiterAfter(end, delimiters) : DelimiterBefore(start, delimiters);
  cursor.setPosition(extend ? (forward ? start : end) : edge);
  if (extend) cursor.setPosition(edge, QTextCursor::KeepAnchor);
  SetCursor(cursor);
}

void QtLexipad::Reformat(ReformatMode mode, std::optional<std::int32_t> line) {
  RequireAlive();
  const EventScope events(*this);
  if (mode == ReformatMode::Text) {
    OnSettingsChanged();
    return ParseAll();
  }
  const std::int32_t wanted = line.value_or(CurrentLine());
  const QTextBlock block = m_Edit->document()->findBlockByNumber(wanted - 1);
  if (block.isValid()) ParseLine(block);
}

// The line is tidied in the same step of undo as what was typed into it. A line that holds characters of
// another kind than it shows is left alone, as they would not come out the same.
void QtLexipad::TidyLine(const QTextBlock& block) {
  const QString before = block.text();
  if (m_Text.LineText(block).View() != ViewOf(before)) return;
  const Text tidy = m_Edit->Words().Tidy(ViewOf(before), m_Edit->BeginsInRemark(block));
  const QString after = ToQString(tidy);
  if (before == after) return;
  qsizetype head = 0;
  while (head < std::min(before.size(), after.size()) && before[head] == after[head]) ++head;
  qsizetype tail = 0;
  while (tail < std::min(before.size(), after.size()) - head &&
         before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
    ++tail;
  QTextCursor cursor(block);
  cursor.joinPreviousEditBlock();
  cursor.setPosition(block.position() + static_cast<int>(head));
  cursor.setPosition(block.position() + static_cast<int>(before.size() - tail), QTextCursor::KeepAnchor);
  cursor.insertText(after.mid(head, after.size() - head - tail));
  cursor.endEditBlock();
  m_Text.Forget();
}

void QtLexipad::ParseLine(const QTextBlock& block) {
  if (CodeEdit::IsEdited(block)) TidyLine(block);
  CodeEdit::SetEdited(block, false);
  const std::int32_t position = m_Text.ToText(block.position());
  const Text text = m_Text.LineText(block);
  NotifyPad([&](LexipadListener& listener) { listener.OnLineParsed(position, text); });
}

void QtLexipad::ParseAll() {
  if (std::exchange(m_IsParsing, true)) return;
  NotifyPad([](LexipadListener& listener) { listener.OnBatchStart(); });
  // By number: a listener may give words another spelling meanwhile.
  for (int i = 0; Native() && i < m_Edit->blockCount(); ++i) {
    const QTextBlock block = m_Edit->document()->findBlockByNumber(i);
    const std::int32_t position = m_Text.ToText(block.position());
    const Text text = m_Text.LineText(block);
    NotifyPad([&](LexipadListener& listener) { listener.OnLineParsed(position, text); });
  }
  if (Native()) NotifyPad([](LexipadListener& listener) { listener.OnBatchEnd(); });
  m_IsParsing = false;
}

// What is typed at the start of a line does not take the mark along.
void QtLexipad::RememberLine(const QTextBlock& block) {
  m_LeftLine = QTextCursor(block);
  m_LeftLine.setKeepPositionOnInsert(true);
}

void QtLexipad::LeaveLine() {
  const QTextBlock now = m_Edit->textCursor().block();
  const QTextBlock left = m_LeftLine.block();
  if (now == left || m_IsParsing) return;
  RememberLine(now);
  if (!left.isValid() || !CodeEdit::IsEdited(left)) return;
  m_IsParsing = true;
  ParseLine(left);
  m_IsParsing = false;
}

void QtLexipad::Undo() {
  RequireAlive();
  const EventScope events(*this);
  m_Edit->undo();
}

void QtLexipad::Redo() {
  RequireAlive();
  const EventScope events(*this);
  m_Edit->redo();
}

bool QtLexipad::CanUndo() const { return Live(m_Edit)->document()->isUndoAvailable(); }
bool QtLexipad::CanRedo() const { return Live(m_Edit)->document()->isRedoAvailable(); }
void QtLexipad::EmptyUndoBuffer() { Live(m_Edit)->document()->clearUndoRedoStacks(); }

}  // namespace cardwright::qt
