// SPDX-License-Identifier: MIT
// Searches of QtLexipad in its text: for a text, and for the characters that delimit a word.

#include <QTextBlock>
#include <algorithm>

#include "cardwright/editor/LineTokens.h"
#include "cardwright/qt/editor/CodeEdit.h"
#include "cardwright/qt/editor/QtLexipad.h"

namespace cardwright::qt {

namespace {

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

}  // namespace

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

}  // namespace cardwright::qt
