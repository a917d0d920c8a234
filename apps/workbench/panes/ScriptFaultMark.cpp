// SPDX-License-Identifier: MIT
#include "workbench/panes/ScriptFaultMark.h"

#include <QHelpEvent>
#include <QTextBlock>
#include <QToolTip>

#include "cardwright/qt/values/QtText.h"
#include "cardwright/shared/ScriptText.h"

namespace cardwright::workbench {
namespace {

constexpr int kCheckAfter = 300;  // milliseconds after the last key

}  // namespace

ScriptFaultMark::ScriptFaultMark(qt::CodeEdit& edit) : QObject(&edit), m_Edit(edit) {
  m_Timer.setSingleShot(true);
  m_Timer.setInterval(kCheckAfter);
  connect(&m_Timer, &QTimer::timeout, this, &ScriptFaultMark::Check);
  edit.viewport()->installEventFilter(this);
}

void ScriptFaultMark::CheckSoon(const Script& script, const std::vector<Text>& controlNames) {
  m_Script = script;
  m_ControlNames = controlNames;
  m_Timer.start();
}

// An error in front of the script, in the names of the controls, has no place in it.
void ScriptFaultMark::Check() {
  m_Message.clear();
  m_Edit.SetMarks({});
  const ScriptLanguage* const language = m_Languages.Named(m_Script.language);
  if (!language || m_Script.content.IsEmpty()) return;
  const ComposedScript composed = ComposeScript(m_Script.content, m_Script.language, m_ControlNames);
  const ScriptError error = language->check(composed.code);
  const int line = error.line - composed.lineOffset;
  if (error.number != 0 && line >= 1) Show(line, error.column, qt::ToQString(error.description));
}

// From the column to the end of the line, or the whole line if nothing follows the column.
void ScriptFaultMark::Show(int line, int column, const QString& message) {
  const QTextBlock block = m_Edit.document()->findBlockByNumber(line - 1);
  if (!block.isValid()) return;
  const int length = block.length() - 1;
  m_Marked = QTextCursor(block);
  m_Marked.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, column < length ? column : 0);
  m_Marked.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  m_Message = message;
  QTextCharFormat format;
  format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
  format.setUnderlineColor(Qt::red);
  m_Edit.SetMarks({{m_Marked, format}});
}

bool ScriptFaultMark::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::ToolTip || m_Message.isEmpty()) return QObject::eventFilter(object, event);
  const auto& help = static_cast<const QHelpEvent&>(*event);
  const int place = m_Edit.cursorForPosition(help.pos()).position();
  const bool isMarked = place >= m_Marked.selectionStart() && place <= m_Marked.selectionEnd();
  QToolTip::showText(help.globalPos(), isMarked ? m_Message : QString(), m_Edit.viewport());
  return true;
}

}  // namespace cardwright::workbench
