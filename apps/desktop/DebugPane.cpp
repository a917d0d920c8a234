#include "desktop/DebugPane.h"

#include "qt/QtText.h"

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

void DebugPane::SetSelText(const Text& text) {
  if (!m_Pane) return;
  m_Pane->moveCursor(QTextCursor::End);
  m_Pane->insertPlainText(qt::ToQString(text).remove(u'\r'));
  m_Pane->ensureCursorVisible();
}

}  // namespace cardwright::desktop
