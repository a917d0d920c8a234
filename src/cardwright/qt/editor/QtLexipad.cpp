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
