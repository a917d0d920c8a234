// SPDX-License-Identifier: MIT
// Lines that QtLexipad parses: when the caret leaves an edited line, or when the whole text is set.

#include <QTextBlock>
#include <algorithm>
#include <utility>

#include "cardwright/editor/LineTokens.h"
#include "cardwright/qt/editor/CodeEdit.h"
#include "cardwright/qt/editor/QtLexipad.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

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

}  // namespace cardwright::qt
