#include "workbench/OutputPane.h"

#include <QFontDatabase>
#include <QPushButton>
#include <QVBoxLayout>

namespace cardwright::workbench {
namespace {

constexpr int kMostLines = 20000;

}  // namespace

OutputPane::OutputPane(QWidget* parent)
    : QWidget(parent),
      m_Tabs(new QTabWidget(this)),
      m_Debug(MakeRef<desktop::DebugPane>(*this)),
      m_Commands(new QPlainTextEdit(this)) {
  const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  m_Debug->Pane()->setMinimumHeight(0);
  for (QPlainTextEdit* pane : {m_Debug->Pane(), m_Commands}) {
    pane->setFont(fixed);
    pane->setReadOnly(true);
    pane->setTabChangesFocus(true);
    pane->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    pane->setLineWrapMode(QPlainTextEdit::NoWrap);
    pane->setMaximumBlockCount(kMostLines);
    pane->setFrameShape(QFrame::NoFrame);
  }
  m_Commands->setAccessibleName(tr("Commands of the host"));
  m_Tabs->addTab(m_Debug->Pane(), tr("Debug output"));
  m_Tabs->addTab(m_Commands, tr("Host commands"));
  m_Tabs->setDocumentMode(true);
  auto* clear = new QPushButton(tr("Clear"), m_Tabs);
  clear->setFlat(true);
  clear->setAutoDefault(false);
  connect(clear, &QPushButton::clicked, this, &OutputPane::Clear);
  m_Tabs->setCornerWidget(clear);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(m_Tabs);
}

void OutputPane::Clear() {
  if (auto* pane = qobject_cast<QPlainTextEdit*>(m_Tabs->currentWidget())) pane->clear();
}

}  // namespace cardwright::workbench
