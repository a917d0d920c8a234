// SPDX-License-Identifier: MIT
#include "desktop/DebugPane.h"

#include <QScrollBar>

#include "cardwright/qt/values/QtText.h"

namespace cardwright::desktop {
namespace {

constexpr Member kMembers[] = {Property<&DebugPane::SelText, &DebugPane::SetSelText>(u"SelText")};

}  // namespace

DebugPane::DebugPane(QWidget& parent) : m_Pane(new QPlainTextEdit(&parent)) {
  m_Pane->setReadOnly(true);
  m_Pane->setAccessibleName(QPlainTextEdit::tr("Debug output"));
  m_Pane->setMinimumHeight(m_Pane->fontMetrics().lineSpacing() * 12);
}

const MemberTable& DebugPane::Members() const {
  static const MemberTable table(kMembers);
  return table;
}

// Keeps the selection and the scroll position.
void DebugPane::SetSelText(const Text& text) {
  if (!m_Pane) return;
  QScrollBar& bar = *m_Pane->verticalScrollBar();
  const bool follows = bar.value() == bar.maximum();
  QTextCursor end(m_Pane->document());
  end.movePosition(QTextCursor::End);
  end.insertText(qt::ToQString(text).remove(u'\r'));
  if (follows) bar.setValue(bar.maximum());
}

}  // namespace cardwright::desktop
