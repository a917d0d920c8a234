// SPDX-License-Identifier: MIT
// The half of CodeEdit that shows which bracket belongs to the one at the caret, and the marks of others.

#include <QTextBlock>
#include <QTextEdit>
#include <utility>

#include "cardwright/qt/editor/CodeEdit.h"

namespace cardwright::qt {

namespace {

constexpr QStringView kOpening = u"([{";
constexpr QStringView kClosing = u")]}";
constexpr int kReach = 500;  // lines that are searched

}  // namespace

bool CodeEdit::IsCodeAt(const QTextBlock& block, int column) {
  const SyntaxElement element = ElementAt(block, column);
  return element != SyntaxElement::Strings && element != SyntaxElement::Remarks;
}

// A cursor on the bracket that belongs to the one that `bracket` selects; none where there is none near.
QTextCursor CodeEdit::BracketOpposite(const QTextCursor& bracket) {
  const QChar own = bracket.selectedText().at(0);
  const bool isForward = kOpening.contains(own);
  const QChar other = isForward ? kClosing[kOpening.indexOf(own)] : kOpening[kClosing.indexOf(own)];
  QTextBlock block = document()->findBlock(bracket.selectionStart());
  int column = bracket.selectionStart() - block.position();
  int depth = 0;
  for (int lines = 0; block.isValid() && lines < kReach; ++lines) {
    const QString text = block.text();
    for (; column >= 0 && column < text.size(); column += isForward ? 1 : -1) {
      if ((text[column] != own && text[column] != other) || !IsCodeAt(block, column)) continue;
      depth += text[column] == own ? 1 : -1;
      if (depth > 0) continue;
      QTextCursor found(block);
      found.setPosition(block.position() + column);
      found.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor);
      return found;
    }
    block = isForward ? block.next() : block.previous();
    column = isForward ? 0 : static_cast<int>(block.text().size()) - 1;
  }
  return {};
}

void CodeEdit::SetMarks(QList<QTextEdit::ExtraSelection> marks) {
  m_Marks = std::move(marks);
  ShowBrackets();
}

void CodeEdit::ShowBrackets() {
  QList<QTextEdit::ExtraSelection> shown = m_Marks;
  QTextCursor caret = textCursor();
  for (const QTextCursor::MoveOperation side : {QTextCursor::Left, QTextCursor::Right}) {
    QTextCursor bracket(document());
    bracket.setPosition(caret.position());
    bracket.movePosition(side, QTextCursor::KeepAnchor);
    const QString text = bracket.selectedText();
    if (text.size() != 1 || (!kOpening.contains(text[0]) && !kClosing.contains(text[0]))) continue;
    const QTextBlock block = document()->findBlock(bracket.selectionStart());
    if (!IsCodeAt(block, bracket.selectionStart() - block.position())) continue;
    const QTextCursor opposite = BracketOpposite(bracket);
    QTextCharFormat format;
    const bool isMatched = !opposite.isNull();
    QColor color = isMatched ? palette().color(QPalette::Highlight) : QColor(Qt::red);
    color.setAlpha(80);
    format.setBackground(color);
    shown.push_back({bracket, format});
    if (isMatched) shown.push_back({opposite, format});
    break;
  }
  if (shown.isEmpty() && extraSelections().isEmpty()) return;
  setExtraSelections(shown);
}

}  // namespace cardwright::qt
