// SPDX-License-Identifier: MIT
#include "workbench/panes/ScriptLines.h"

#include <QCoreApplication>
#include <QInputDialog>
#include <QTextBlock>
#include <algorithm>
#include <vector>

namespace cardwright::workbench {
namespace {

struct IndentedLine {
  int start;  ///< of its text, after the indent
  bool isComment;
};

// A selection that ends at the start of a line does not include that line.
std::vector<IndentedLine> SelectedLines(const QPlainTextEdit& edit, const QString& mark) {
  const QTextCursor caret = edit.textCursor();
  std::vector<IndentedLine> lines;
  for (QTextBlock block = edit.document()->findBlock(caret.selectionStart()); block.isValid();
       block = block.next()) {
    const QString text = block.text();
    const auto indent = std::ranges::find_if(text, [](QChar c) { return !c.isSpace(); }) - text.begin();
    if (indent < text.size())
      lines.push_back(
          {block.position() + static_cast<int>(indent), QStringView(text).mid(indent).startsWith(mark)});
    if (block.next().position() >= caret.selectionEnd()) break;
  }
  return lines;
}

}  // namespace

void ToggleComment(QPlainTextEdit& edit, const QString& mark) {
  const std::vector<IndentedLine> lines = SelectedLines(edit, mark);
  const bool uncomments = std::ranges::all_of(lines, &IndentedLine::isComment);
  QTextCursor cursor(edit.document());
  cursor.beginEditBlock();
  // From the last line to the first, so that the places stay true.
  for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
    cursor.setPosition(line->start);
    if (uncomments) cursor.setPosition(line->start + static_cast<int>(mark.size()), QTextCursor::KeepAnchor);
    cursor.insertText(uncomments ? QString() : mark);
  }
  cursor.endEditBlock();
}

void AskForLine(QPlainTextEdit& edit) {
  const auto translated = [](const char* text) { return QCoreApplication::translate("ScriptLines", text); };
  bool isChosen = false;
  const int line =
      QInputDialog::getInt(&edit, translated("Go to Line"), translated("Line:"),
                           edit.textCursor().blockNumber() + 1, 1, edit.blockCount(), 1, &isChosen);
  if (!isChosen) return;
  edit.setTextCursor(QTextCursor(edit.document()->findBlockByNumber(line - 1)));
  edit.setFocus();
}

}  // namespace cardwright::workbench
